sample HelloWorld
cd HelloWorld
sed -i 's/^Private Sub \(.*\)$/Private Sub \1\n    x = = 1\r/;' frmHello.frm
grep -n -a 'x = = 1' frmHello.frm | tr -d '\r'
run fernwick build
run ls
stored HelloWorld.vbp NumErrors
stored HelloWorld.vbp Error1
say a new process prints the same
run fernwick messages
run fernwick messages --format json
sed -i '/x = = 1/d' frmHello.frm
run fernwick build
stored HelloWorld.vbp NumErrors
stored HelloWorld.vbp Error1
run fernwick messages
