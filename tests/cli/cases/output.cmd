say "Sources need not be writable: image, package and results go to another folder."
sample HelloWorld
chmod -R a-w HelloWorld
run fernwick build HelloWorld/HelloWorld.vbp
run fernwick build HelloWorld/HelloWorld.vbp --no-store
run fernwick validate HelloWorld/HelloWorld.vbp --no-store
run fernwick build HelloWorld/HelloWorld.vbp --output made
run ls HelloWorld made
run grep exitStatus made/HelloWorld.report.json
run fernwick package HelloWorld/HelloWorld.vbp --output made
run fernwick package --verify made/HelloWorld.PalmOS-DragonBall.qlpkg
run ls HelloWorld made
run fernwick clean HelloWorld/HelloWorld.vbp --output made --dry-run
run fernwick clean HelloWorld/HelloWorld.vbp --output made
run ls made
run fernwick clean HelloWorld/HelloWorld.vbp

say "A current image in the output folder is sent as it is."
cp -r HelloWorld fresh && chmod -R u+w fresh
fernwick settings set fresh/HelloWorld.vbp LastCompileVersion '3.5.0 (0624)'
run fernwick deploy fresh/HelloWorld.vbp --output sent
run fernwick deploy fresh/HelloWorld.vbp --output sent
run ls fresh sent

say "Without --output the image is made, but nothing is stored."
cp fresh/HelloWorld.vbp before
run fernwick build fresh/HelloWorld.vbp --no-store
same fresh/HelloWorld.vbp before
printf 'Sub Broken()\r\n  x = = 1\r\nEnd Sub\r\n' >>fresh/frmHello.frm
run fernwick build fresh/HelloWorld.vbp --no-store
run fernwick validate fresh/HelloWorld.vbp --no-store
same fresh/HelloWorld.vbp before

say "A folder that cannot be written or made."
touch file
mkdir locked && chmod a-w locked
run fernwick build fresh/HelloWorld.vbp --output file
run fernwick build fresh/HelloWorld.vbp --output locked
chmod a-w fresh
run fernwick build fresh/HelloWorld.vbp
chmod u+w fresh
