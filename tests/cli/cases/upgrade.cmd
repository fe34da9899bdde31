sample HelloWorld
cd HelloWorld
run fernwick upgrade
cp HelloWorld.vbp present
grep -av '^ProjectVersion=\|^DefaultFontName=\|CompileTarget' present | sed 's/^TavletStyleID=.*/OldOption=7\r/' > HelloWorld.vbp
cp HelloWorld.vbp old
run fernwick build
run fernwick upgrade
same HelloWorld.vbp.bak old
diff old HelloWorld.vbp
run fernwick recent
run fernwick check
cp HelloWorld.vbp upgraded
run fernwick upgrade --format json
same HelloWorld.vbp upgraded
sed 's/^ProjectVersion=.*/ProjectVersion=1.0\r/; s/^TargetDevice=.*/TargetDevice=Gone-9\r/' present > HelloWorld.vbp
run fernwick upgrade --format json
grep -a 'ProjectVersion\|TargetDevice' HelloWorld.vbp
ls
sed '/Quinloft/,$d' present > HelloWorld.vbp
run fernwick upgrade
