sample HelloWorld
cd HelloWorld
say "A good project is valid, and stays so."
run fernwick validate HelloWorld.vbp
run fernwick validate HelloWorld.vbp --device PocketPC-SH3
cp HelloWorld.vbp before
run fernwick validate HelloWorld.vbp
same HelloWorld.vbp before

say "A missing reference is an error, once however often it is looked for."
sed -i 's/^Reference=.*QLDevice.*/Reference=*\\G{99999999-1111-2222-3333-444444444444}#1.0#0#gone.dll#Gone Library\r/' HelloWorld.vbp
for i in 1 2 3; do run fernwick validate HelloWorld.vbp; done
stored HelloWorld.vbp NumErrors
run fernwick validate HelloWorld.vbp --quiet --format json

say "Reference checking off: nothing to say."
run fernwick settings set HelloWorld.vbp ScanReferences False
run fernwick validate HelloWorld.vbp

say "A device that is not there."
run fernwick validate HelloWorld.vbp --device Psion-5

say "Forms that are not saved are not validated."
sed -i 's/^TwipsPerPixel\(.\)=15/TwipsPerPixel\1=12/' HelloWorld.vbp
run fernwick validate HelloWorld.vbp --answer convert-dpi=yes
run fernwick validate HelloWorld.vbp --answer convert-dpi=yes --answer save-files=yes
