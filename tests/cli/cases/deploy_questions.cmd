say "A dependency that has gone: its questions, refused without an answer."
sample HelloWorld
cd HelloWorld
run fernwick install-runtime --device PalmOS-DragonBall --quiet
printf 'prices' >prices.txt
run fernwick dependencies HelloWorld.vbp add prices.txt
run fernwick deploy HelloWorld.vbp --quiet
rm prices.txt
run fernwick deploy HelloWorld.vbp
say "Going on leaves it out."
run fernwick deploy HelloWorld.vbp --answer missing-file=yes

say "An old image is sent only when the user wants to be asked, and insists."
fernwick registry set 'HKEY_CURRENT_USER\SOFTWARE\Quinloft\Embedded Toolkit\AddIn' CompileWarning dword:00000001
touch -d '1 minute ago' HelloWorld.0000.qlx
run fernwick deploy HelloWorld.vbp --answer not-current=no --answer missing-file=yes
printf 'Sub Broken()\r\n  x = = 1\r\nEnd Sub\r\n' >>frmHello.frm
run fernwick build HelloWorld.vbp --quiet
run fernwick deploy HelloWorld.vbp --answer not-current=no --answer missing-file=yes
run fernwick deploy HelloWorld.vbp --answer not-current=no --answer missing-file=yes --answer deploy-errors=yes
run fernwick deploy HelloWorld.vbp --answer not-current=cancel
run fernwick deploy HelloWorld.vbp
