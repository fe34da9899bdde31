sample HelloWorld
cd HelloWorld
cp HelloWorld.vbp before
run fernwick steps
run fernwick steps add pre 'echo one' 'sh -c "echo two"' 'echo three'
run fernwick steps HelloWorld.vbp add post 'echo after'
run fernwick steps list
run fernwick steps list post
stored HelloWorld.vbp PreCompileStepCount
run fernwick steps move pre 3 1
run fernwick steps move pre HelloWorld.vbp 1 2
run fernwick steps HelloWorld.vbp move pre 1 2
run fernwick steps
run fernwick settings get PreCompileSteps
run fernwick steps remove pre 1 3
run fernwick steps remove post 1
run fernwick steps
say nothing is written where nothing changes or something is wrong
cp HelloWorld.vbp before
run fernwick steps move pre 1 1
run fernwick steps remove pre 2
run fernwick steps move pre 1 2
run fernwick steps add pre good ' '
run fernwick steps add pre 'ключ'
run fernwick steps add
run fernwick steps add pre
run fernwick steps add during x
run fernwick steps remove pre x
run fernwick steps remove pre 0
run fernwick steps move pre 1
run fernwick steps change pre 1
same HelloWorld.vbp before
sed -i '/Quinloft/,$d' HelloWorld.vbp
run fernwick steps
