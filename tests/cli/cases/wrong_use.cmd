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
touch a.vbp b.VBP
run fernwick build
