run fernwick
run fernwick bake
run fernwick build --depth 3
run fernwick build --format xml
run fernwick info --format sarif
run fernwick build --yes --no
run fernwick build --trust-steps --no-steps
run fernwick build --answer device
run fernwick build --answer colour=yes
run fernwick build
run fernwick settings
run fernwick registry get
run fernwick registry set HKEY_CURRENT_USER
run fernwick biuld
run fernwick upload
run fernwick help biuld
run fernwick build --formt json
run fernwick build -z
run fernwick build --depfile
run fernwick build a.vbp b.vbp
run fernwick build --answer devic=yes
run fernwick build --answer device=perhaps
run fernwick build --color pink
run fernwick build -q -v
run fernwick check --code-page abc
run fernwick settings lsit
run fernwick completion ksh
run fernwick explain FW1
sample HelloWorld
run fernwick settings get HelloWorld/HelloWorld.vbp DefaultFontSice
run fernwick settings set HelloWorld/HelloWorld.vbp TargetDevice PocketPC-ARN
run fernwick build HelloWorld/HelloWorld.vbp --device pocketpc
run fernwick devices add palmos
touch a.vbp b.VBP
run fernwick build
run fernwick --nonsense build
run fernwick settings set HelloWorld/HelloWorld.vbp PreCompileSteps -x
run fernwick help build now
say "A folder with several projects, and one with none."
run fernwick info .
mkdir empty
run fernwick build empty
