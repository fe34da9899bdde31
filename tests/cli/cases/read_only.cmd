sample HelloWorld
cd HelloWorld
chmod a-w HelloWorld.vbp
cp HelloWorld.vbp before
run fernwick build
same HelloWorld.vbp before
run ls
run fernwick settings set DefaultFontSize 9
same HelloWorld.vbp before
