say "Folders with spaces and letters beyond ASCII, which differ only in letter case."
run fernwick new "Größe 計算/Game" --device PalmOS-DragonBall
run fernwick new "größe 計算/Game" --device PocketPC-SH3
cd "Größe 計算/Game"
run fernwick build Game.vbp --quiet
cp Game.vbp before
run fernwick convert Game.vbp --to PocketPC-SH3 --output "../../Kopie zwei/Spiel"
same Game.vbp before
run fernwick check "../../Kopie zwei/Spiel.vbp"
run fernwick convert Game.vbp --to PocketPC-SH3 --in-place
same Game.vbp.bak before
cd ../..
sed -i '/^ProjectVersion/d' "Größe 計算/Game/Game.vbp"
run fernwick upgrade "Größe 計算/Game/Game.vbp"
run fernwick recent
find . -name '*.vbp*' | sort
say "A project through a symbolic link: the file is changed where it is, and the link stays."
sample HelloWorld
mkdir linked
ln -s ../HelloWorld/HelloWorld.vbp ../HelloWorld/frmHello.frm linked
run fernwick convert linked/HelloWorld.vbp --to PocketPC-SH3 --in-place
ls -F linked HelloWorld
grep -a ^TargetDevice HelloWorld/HelloWorld.vbp
