sample HelloWorld
cp HelloWorld/HelloWorld.vbp before
mkdir -p elsewhere/bin
ln "$(readlink -f "$(command -v fernwick)")" elsewhere/bin/fernwick 2>/dev/null || cp "$(readlink -f "$(command -v fernwick)")" elsewhere/bin/fernwick
say no installation
run elsewhere/bin/fernwick build HelloWorld/HelloWorld.vbp
run elsewhere/bin/fernwick targets
say an installation without targets
mkdir -p elsewhere/share/fernwick/targets elsewhere/share/fernwick/registry
run elsewhere/bin/fernwick build HelloWorld/HelloWorld.vbp
run elsewhere/bin/fernwick targets
say an installation with a faulty target
printf 'key = \n' >elsewhere/share/fernwick/targets/bad.toml
run elsewhere/bin/fernwick targets
same HelloWorld/HelloWorld.vbp before
run ls HelloWorld
