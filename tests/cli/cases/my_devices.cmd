say "My Devices are served one after the other, also after a failure."
sample HelloWorld
cd HelloWorld
run fernwick deploy HelloWorld.vbp --my-devices
run fernwick devices add PalmOS-DragonBall PocketPC-SH3 LinuxHandheld-ARM
run fernwick deploy HelloWorld.vbp --my-devices
run fernwick package HelloWorld.vbp --my-devices
run fernwick install-runtime --my-devices
run fernwick devices remove PalmOS-DragonBall PocketPC-SH3
run fernwick install-runtime --my-devices
run fernwick install-runtime
run fernwick install-runtime --device Psion-5
