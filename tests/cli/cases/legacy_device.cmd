sample HelloWorld
cd HelloWorld
key='\\Quinloft\\DesignTargets\\PalmOS'
sed -i '/^numCompileTargets/d;/^CompileTarget1/d' HelloWorld.vbp
sed -i "s|^TargetDevice=.*|TargetDevice=SOFTWARE$key\r|" HelloWorld.vbp
stored HelloWorld.vbp TargetDevice
run fernwick settings get TargetDevice
stored HelloWorld.vbp TargetDevice
run fernwick settings set TargetDevice PalmOS-DragonBall
stored HelloWorld.vbp TargetDevice
grep -a -i CompileTarget HelloWorld.vbp | tr -d '\r'
