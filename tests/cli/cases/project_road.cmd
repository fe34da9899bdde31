run fernwick new Walker --device PalmOS-DragonBall
cd Walker
say every kind of setting
echo 1,2,3 >data.txt
run fernwick settings set SpacesInNameEnabled True
run fernwick settings set ScanReferences False
run fernwick settings set PalmOSCreatorID Walk
run fernwick settings set HandheldFolder apps
run fernwick dependencies add data.txt
run fernwick steps add pre 'echo before'
run fernwick trust add Walker.vbp
run fernwick build --quiet
say a copy for another device
run fernwick convert --to PocketPC-ARM --output ../copy/Walker.vbp
find .. -name '*.vbp*' | sort
stored Walker.vbp TargetDevice
stored ../copy/Walker.vbp TargetDevice
run fernwick settings get PalmOSCreatorID ../copy/Walker.vbp
run fernwick settings get ../copy/Walker.vbp PalmOSCreatorID
run fernwick dependencies ../copy/Walker.vbp
say in place
run fernwick convert --to PocketPC-SH3 --in-place
find .. -name '*.vbp*' | sort
stored Walker.vbp TargetDevice
run fernwick recent
