say "The questions about a missing dependency are answered with no."
sample HelloWorld
cd HelloWorld
run fernwick install-runtime --device PalmOS-DragonBall --quiet
printf 'prices' >prices.txt
run fernwick dependencies HelloWorld.vbp add prices.txt
run fernwick deploy HelloWorld.vbp --quiet
rm prices.txt
run fernwick deploy HelloWorld.vbp
say "With yes it is left out."
run fernwick deploy HelloWorld.vbp --answer missing-file=yes

say "An outdated image is sent only on request."
fernwick registry set 'HKEY_CURRENT_USER\SOFTWARE\Quinloft\Embedded Toolkit\AddIn' CompileWarning dword:00000001
touch -d '1 minute ago' HelloWorld.0000.qlx
run fernwick deploy HelloWorld.vbp --answer not-current=no --answer missing-file=yes
printf 'Sub Broken()\r\n  x = = 1\r\nEnd Sub\r\n' >>frmHello.frm
run fernwick build HelloWorld.vbp --quiet
run fernwick deploy HelloWorld.vbp --answer not-current=no --answer missing-file=yes
run fernwick deploy HelloWorld.vbp --answer not-current=no --answer missing-file=yes --answer deploy-errors=yes
run fernwick deploy HelloWorld.vbp --answer not-current=cancel
run fernwick deploy HelloWorld.vbp
