say "A damaged list of stored messages."
sample HelloWorld
cd HelloWorld
printf '\r\n[Quinloft Project Compile Errors]\r\nNumErrors=2147483647\r\nError1=OTHER|frmHello.frm|1|text|5\r\nError2=ERROR||0|more|6\r\n' >>HelloWorld.vbp
run timeout 60 fernwick messages
runline 'timeout 60 fernwick build --quiet 2>/dev/null'
stored HelloWorld.vbp NumErrors
