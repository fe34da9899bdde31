sample HelloWorld
cd HelloWorld
run fernwick build --format json
run fernwick build --format sarif
run fernwick build --format json --quiet missing.vbp
run fernwick build --format sarif missing.vbp
sed -i 's/^Private Sub \(.*\)$/Private Sub \1\n    x = = 1\r/;' frmHello.frm
run fernwick build --format json
run fernwick build --format sarif
