say "A folder outside the project's code page: the run still reports its messages."
mkdir 'Łukasz'
cp "$SAMPLES/HelloWorld/"* 'Łukasz'
printf 'Sub Broken()\r\n  x = = 1\r\nEnd Sub\r\n' >>Łukasz/frmHello.frm
run fernwick build Łukasz/HelloWorld.vbp
runline "fernwick build Łukasz/HelloWorld.vbp --format json 2>/dev/null | grep -E '\"(file|number|line)\"'"
say "A path that stored messages cannot hold."
mkdir 'a|b'
cp "$SAMPLES/HelloWorld/"* 'a|b'
run fernwick build 'a|b/HelloWorld.vbp'
run fernwick build 'a|b/HelloWorld.vbp' --no-store
