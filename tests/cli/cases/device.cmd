sample HelloWorld
cd HelloWorld
sed -i '/^TargetDevice/d;/^numCompileTargets/d;/^CompileTarget1/d' HelloWorld.vbp
cp HelloWorld.vbp before
run fernwick build
same HelloWorld.vbp before
run fernwick build --device Toaster
same HelloWorld.vbp before
run fernwick build --device palmos-dragonball
stored HelloWorld.vbp TargetDevice
grep -a -i CompileTarget HelloWorld.vbp | tr -d '\r'
run fernwick build
say a device that is not installed
sed -i 's/^TargetDevice=.*/TargetDevice=Toaster\r/' HelloWorld.vbp
run fernwick build
say no other device is chosen instead
sed -i 's/^TargetDevice=.*/TargetDevice=PalmOS-DragonBall\r/' HelloWorld.vbp
run fernwick build --device POCKETPC-sh3
say the option names a design target, not a row of the form
cp before HelloWorld.vbp
run fernwick build --device PocketPC-ARM
stored HelloWorld.vbp TargetDevice
run fernwick validate
