sample HelloWorld
run fernwick build --quiet HelloWorld/HelloWorld.vbp
run fernwick build --verbose HelloWorld/HelloWorld.vbp
run fernwick check --quiet HelloWorld/HelloWorld.vbp
run fernwick info --verify --quiet HelloWorld/HelloWorld.vbp
