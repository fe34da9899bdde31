sample HelloWorld
cd HelloWorld
say "A correct project is valid, also the second time."
run fernwick validate HelloWorld.vbp
run fernwick validate HelloWorld.vbp --device PocketPC-SH3
cp HelloWorld.vbp before
run fernwick validate HelloWorld.vbp
same HelloWorld.vbp before

say "A missing reference is one error, however often it is looked for."
sed -i 's/^Reference=.*QLDevice.*/Reference=*\\G{99999999-1111-2222-3333-444444444444}#1.0#0#gone.dll#Gone Library\r/' HelloWorld.vbp
for i in 1 2 3; do run fernwick validate HelloWorld.vbp; done
stored HelloWorld.vbp NumErrors
run fernwick validate HelloWorld.vbp --quiet --format json

say "Without reference checking there are no errors."
run fernwick settings set HelloWorld.vbp ScanReferences False
run fernwick validate HelloWorld.vbp

say "A device that is not installed."
run fernwick validate HelloWorld.vbp --device Psion-5

say "Unsaved forms are not validated."
sed -i 's/^TwipsPerPixel\(.\)=15/TwipsPerPixel\1=12/' HelloWorld.vbp
run fernwick validate HelloWorld.vbp --answer convert-dpi=yes
run fernwick validate HelloWorld.vbp --answer convert-dpi=yes --answer save-files=yes
