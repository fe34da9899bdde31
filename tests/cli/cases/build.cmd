sample HelloWorld
cd HelloWorld
run fernwick build
run ls
run fernwick messages
cp HelloWorld.vbp first.vbp_
say the second build asks no questions
run fernwick build HelloWorld.vbp
same HelloWorld.vbp first.vbp_
run diff "$SAMPLES/HelloWorld/HelloWorld.vbp" HelloWorld.vbp --text --strip-trailing-cr
say the image is not older than its inputs
find . -name '*.vbp' -newer HelloWorld.0000.qlx
find . -name '*.frm' -newer HelloWorld.0000.qlx
