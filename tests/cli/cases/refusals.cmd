run fernwick build missing.vbp
run fernwick info missing.vbp
run fernwick messages no/such/folder.vbp
run fernwick settings list missing.vbp
run fernwick check missing.bas
mkdir folder.vbp
run fernwick build folder.vbp
run fernwick check folder.vbp
rmdir folder.vbp
head -c 3000 /dev/zero | tr '\0' '\377' >binary.vbp
run fernwick build binary.vbp
run fernwick info binary.vbp
run fernwick info --verify binary.vbp
run fernwick check binary.vbp
rm binary.vbp
sample HelloWorld
cd HelloWorld
run fernwick info frmHello.frm
say not a Fernwick project
sed -i '/^\[Quinloft Global\]/,$d' HelloWorld.vbp
cp HelloWorld.vbp before
run fernwick build
run fernwick settings set DefaultFontSize 9
run fernwick check
same HelloWorld.vbp before
say an older one
printf '[Quinloft Global]\r\nIsQuinloftProject=True\r\nProjectVersion=1.0\r\n' >>HelloWorld.vbp
cp HelloWorld.vbp before
run fernwick build
same HelloWorld.vbp before
sed -i '/^ProjectVersion/d' HelloWorld.vbp
run fernwick build
run ls
