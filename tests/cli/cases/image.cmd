sample HelloWorld
fernwick build -q HelloWorld/HelloWorld.vbp >/dev/null 2>&1
say "Without code only the contents are shown."
runline 'fernwick image HelloWorld/HelloWorld.0000.qlx | head -3'
say "A project of modules and classes has code."
printf 'Sub Main()\nEnd Sub\n' | module_project Bare
run fernwick build -q Bare/Bare.vbp
run fernwick image Bare/Bare.0000.qlx --code Main
say a program
cp "$FERNWICK_SOURCE/fuzz/corpus/image_code/program.qlx" Stored.0000.qlx
run fernwick image Stored.0000.qlx
run fernwick image Stored.0000.qlx --code main
run fernwick image --code Stored.0000.qlx module1.shape_draw Draw
run fernwick image Stored.0000.qlx --code Nothing
run fernwick image Stored.0000.qlx Main
say "Code that may not run is shown with the reason."
python3 - <<'EOF'
import zlib
data = bytearray(open("Stored.0000.qlx", "rb").read())
entry = data.index(b"CODE", 20)
data[int.from_bytes(data[entry + 4:entry + 8], "little") + 4] = 1  # LoadText into a Long
data[12:16] = zlib.crc32(data[20:]).to_bytes(4, "little")
open("refused.qlx", "wb").write(data)
EOF
run fernwick image refused.qlx --code Main
runline 'fernwick image refused.qlx --format json | grep problem'
say "What is damaged is refused."
head -c 100 Stored.0000.qlx >short.qlx
run fernwick image short.qlx
run fernwick image HelloWorld/HelloWorld.vbp
run fernwick image gone.qlx
run fernwick image HelloWorld
