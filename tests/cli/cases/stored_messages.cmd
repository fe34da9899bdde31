say "Stored messages: an unknown type, and no file. Then a count that no list has."
sample HelloWorld
cd HelloWorld
printf '\r\n[Quinloft Project Compile Errors]\r\nNumErrors=2\r\nError1=OTHER|frmHello.frm|1|text|5\r\nError2=ERROR||0|more|6\r\n' >>HelloWorld.vbp
run fernwick messages
sed -i 's/^NumErrors=.*/NumErrors=2147483647\r/' HelloWorld.vbp
run timeout 60 fernwick messages
runline 'timeout 60 fernwick build --quiet 2>/dev/null'
