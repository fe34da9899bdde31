say "Without a part that a build needs the status is 3, and nothing is written."
mkdir -p elsewhere/bin elsewhere/share
cp "$(readlink -f "$(command -v fernwick)")" elsewhere/bin/fernwick
cp -r "$FERNWICK_SOURCE/installation" elsewhere/share/fernwick
rm -r elsewhere/share/fernwick/tavlets
sample HelloWorld
cp HelloWorld/HelloWorld.vbp before
run elsewhere/bin/fernwick build HelloWorld/HelloWorld.vbp
run elsewhere/bin/fernwick package HelloWorld/HelloWorld.vbp
same HelloWorld/HelloWorld.vbp before
run ls HelloWorld
