say a converted form that cannot be saved
sample HelloWorld
cd HelloWorld
sed -i 's/^TwipsPerPixel\(.\)=15/TwipsPerPixel\1=12/' HelloWorld.vbp
chmod a-w frmHello.frm
cp frmHello.frm before
run fernwick build --yes
same frmHello.frm before
run fernwick messages
run ls
