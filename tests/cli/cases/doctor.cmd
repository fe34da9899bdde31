say an installation with one target
mkdir -p elsewhere/bin elsewhere/share
ln "$(readlink -f "$(command -v fernwick)")" elsewhere/bin/fernwick 2>/dev/null || cp "$(readlink -f "$(command -v fernwick)")" elsewhere/bin/fernwick
cp -r "$FERNWICK_SOURCE/installation" elsewhere/share/fernwick
installed=elsewhere/share/fernwick
find $installed/targets -name '*.toml' ! -name 'PalmOS*' -delete
find $installed/Fonts -iname '*.cmf' -delete
doctor() { runline "elsewhere/bin/fernwick doctor $* | sed -E 's/[0-9.]+ [KMGT]B free/N free/'"; }
doctor
doctor --quiet
run elsewhere/bin/fernwick devices add PalmOS-DragonBall
say a valid font, a file that is not a font, and a damaged font
printf '\3\14\0\0\0%19s%s' '' QLPalm >$installed/Fonts/QLP_12R.CMF
printf 'x' >$installed/Fonts/Bad_08R.CMF
doctor --quiet
rm $installed/Fonts/Bad_08R.CMF
say missing and damaged parts
rm "$installed/VB Toolkit/Bin/QLDEFAULT.ico" $installed/Template/Projects/*.vbp
printf 'name = \n' >$installed/maker.toml
printf '[HKEY_LOCAL_MACHINE\n' >>$installed/registry/libraries.reg
printf 'key = \n' >$installed/targets/bad.toml
sed -i 's/^pipe *=.*/pipe = "QLPipeNobodyHas"/' $installed/targets/PalmOS-DragonBall.toml
doctor --quiet
run fernwick doctor --format sarif
say no installation
rm -r $installed
doctor
runline 'elsewhere/bin/fernwick doctor >all; echo status $?'
