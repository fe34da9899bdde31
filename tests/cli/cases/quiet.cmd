sample HelloWorld
run fernwick build --quiet HelloWorld/HelloWorld.vbp
run fernwick build --verbose HelloWorld/HelloWorld.vbp
run fernwick check --quiet HelloWorld/HelloWorld.vbp
run fernwick info --verify --quiet HelloWorld/HelloWorld.vbp
run fernwick package --quiet HelloWorld/HelloWorld.vbp
run fernwick deploy --quiet HelloWorld/HelloWorld.vbp
run fernwick validate --quiet HelloWorld/HelloWorld.vbp
touch HelloWorld/frmHello.frm
run fernwick -v build HelloWorld/HelloWorld.vbp
echo 'Sub x(' >>HelloWorld/frmHello.frm
run fernwick -q build HelloWorld/HelloWorld.vbp
