say "Spaces, letters beyond ASCII, and names that differ only in letter case."
run fernwick new "Größe 計算/My Game" --device PalmOS-DragonBall
mkdir "größe 計算"
run fernwick new "größe 計算/My Game" --device PocketPC-SH3
cd "Größe 計算/My Game"
run fernwick build "My Game.vbp" --quiet
cp "My Game.vbp" before
run fernwick convert "My Game.vbp" --to PocketPC-SH3 --output "../Kopie – zwei/Mein Spiel"
same "My Game.vbp" before
run fernwick check "../Kopie – zwei/Mein Spiel.vbp"
run fernwick convert "My Game.vbp" --to PocketPC-SH3 --in-place
same "My Game.vbp.bak" before
cd ../..
sed -i '/^ProjectVersion/d' "Größe 計算/My Game/My Game.vbp"
run fernwick upgrade "Größe 計算/My Game/My Game.vbp"
run fernwick recent
grep -a TargetDevice "größe 計算/My Game/My Game.vbp"
say "A project through a symbolic link: the file is changed where it is, and the link stays."
sample HelloWorld
mkdir linked
ln -s ../HelloWorld/HelloWorld.vbp ../HelloWorld/frmHello.frm linked
run fernwick convert linked/HelloWorld.vbp --to PocketPC-SH3 --in-place
ls -F linked HelloWorld
grep -a ^TargetDevice HelloWorld/HelloWorld.vbp
printf 'Type=Exe\r\nForm=frm.frm\r\nName="Plain"\r\n' >'My plain.vbp'
printf 'VERSION 5.00\r\nBegin VB.Form frm \r\nEnd\r\nAttribute VB_Name = "frm"\r\n' >frm.frm
mkdir 'l i n k'
ln -s ../frm.frm '../My plain.vbp' 'l i n k'
run fernwick init 'l i n k/My plain.vbp' --device PalmOS-DragonBall --yes
ls -F . 'l i n k'
