say targets rejected by their own validation: no question is asked, and the project is unchanged
sample HelloWorld
sed -i '/^TargetDevice/d;/^numCompileTargets/d;/^CompileTarget1/d' HelloWorld/HelloWorld.vbp
cp HelloWorld/HelloWorld.vbp before
mkdir -p elsewhere/bin elsewhere/share
ln "$(readlink -f "$(command -v fernwick)")" elsewhere/bin/fernwick 2>/dev/null || cp "$(readlink -f "$(command -v fernwick)")" elsewhere/bin/fernwick
cp -r "$FERNWICK_SOURCE/installation" elsewhere/share/fernwick
sed -i 's/^pipe *=.*/pipe = "QLPipeNobodyHas"/' elsewhere/share/fernwick/targets/*.toml
run elsewhere/bin/fernwick targets
run elsewhere/bin/fernwick build HelloWorld/HelloWorld.vbp
same HelloWorld/HelloWorld.vbp before
run ls HelloWorld
