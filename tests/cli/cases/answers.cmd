say forms from another screen resolution
sample HelloWorld
cd HelloWorld
sed -i 's/^TwipsPerPixel\(.\)=15/TwipsPerPixel\1=12/' HelloWorld.vbp
cp -r . ../other
run fernwick build
stored HelloWorld.vbp TwipsPerPixelX
cd ../other
run fernwick build --answer convert-dpi=yes
stored HelloWorld.vbp TwipsPerPixelX
diff --text "$SAMPLES/HelloWorld/frmHello.frm" frmHello.frm | head -20 | tr -d '\r'
say all questions at once
cd ..
sample TipCalculator
sed -i 's/^TwipsPerPixel\(.\)=15/TwipsPerPixel\1=12/' TipCalculator/TipCalculator.vbp
run fernwick build --no TipCalculator/TipCalculator.vbp
run fernwick build --yes TipCalculator/TipCalculator.vbp
