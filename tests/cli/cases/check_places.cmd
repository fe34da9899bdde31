say "A folder: its projects with their constants, then the other sources."
mkdir -p code/sub code/.hidden
cp "$SAMPLES/HelloWorld/"* code/sub
printf 'Sub a()\r\n  x = = 1\r\nEnd Sub\r\n' | tee code/b.bas code/.hidden/c.bas >code/a.bas
echo text >code/notes.txt
run fernwick check code
mkdir empty
run fernwick check empty
say "Standard input."
runline 'printf "Sub a()\r\nEnd Sub\r\n" | fernwick check -'
runline 'fernwick check - <code/a.bas'
runline 'fernwick check - --name code/x.cls <code/a.bas'
