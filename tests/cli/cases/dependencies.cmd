sample HelloWorld
cd HelloWorld
cp HelloWorld.vbp before
mkdir -p data
echo 12345 >data/cities.pdb
echo 123 >logo.bmp
say reading saves nothing
run fernwick dependencies
same HelloWorld.vbp before
say files in the project folder
run fernwick dependencies HelloWorld.vbp add data/cities.pdb logo.bmp
run fernwick dependencies
runline 'diff before HelloWorld.vbp | tr -d "\r"'
cp HelloWorld.vbp before
say a file that is in the list is not added again
run fernwick dependencies add LOGO.bmp "$PWD/data/cities.pdb"
same HelloWorld.vbp before
say a file from another folder is copied after a question
echo 1 >../sound.wav
run fernwick dependencies add ../sound.wav
same HelloWorld.vbp before
run fernwick dependencies add ../sound.wav --answer copy-file=yes
run fernwick dependencies list HelloWorld.vbp
run cat sound.wav
say a copy does not overwrite a different file
echo other >../logo.bmp
cp HelloWorld.vbp before
run fernwick dependencies add ../logo.bmp --yes
run cat logo.bmp
say a copy that fails, and two files with the same name
touch c.txt
ln -s /nowhere/at/all link.wav
echo 2 >../link.wav
run fernwick dependencies add c.txt ../link.wav --yes
mkdir ../more && echo 3 >../more/sound2.wav && echo 2 >../sound2.wav
run fernwick dependencies add ../sound2.wav ../more/sound2.wav --yes
run fernwick dependencies
say one invalid file prevents all additions
touch 'a,b.txt' d.txt
cp HelloWorld.vbp before
run fernwick dependencies add d.txt 'a,b.txt'
run fernwick dependencies add d.txt data
run fernwick dependencies add d.txt missing.txt
touch 'ключ.txt'
run fernwick dependencies add d.txt 'ключ.txt'
same HelloWorld.vbp before
say removal by the stored name and by the path
rm data/cities.pdb
run fernwick dependencies
run fernwick dependencies remove 'DATA\cities.pdb'
run fernwick dependencies remove ../HelloWorld/logo.bmp
run fernwick dependencies
cp HelloWorld.vbp before
run fernwick dependencies remove sound.wav logo.bmp
same HelloWorld.vbp before
run fernwick dependencies remove sound.wav c.txt sound2.wav
run fernwick dependencies
say wrong usage
run fernwick dependencies HelloWorld.vbp logo.bmp
run fernwick dependencies add
run fernwick dependencies list logo.bmp
run fernwick dependencies missing.vbp
run fernwick dependencies missing.vbp --format json
say a read-only project, and one that is not a Fernwick project
chmod a-w HelloWorld.vbp
run fernwick dependencies add logo.bmp
chmod u+w HelloWorld.vbp
sed -i '/^IsQuinloftProject/d' HelloWorld.vbp
run fernwick dependencies add logo.bmp
run fernwick dependencies
