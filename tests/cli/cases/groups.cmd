sample HelloWorld
sample AddressBook
group() { { echo 'VBGROUP 5.0'; printf '%s\n' "$@"; } | crlf "$name"; }
name=both.vbg group 'StartupProject=HelloWorld\HelloWorld.vbp' 'Project=AddressBook\AddressBook.vbp'
name=bad.vbg group 'Project=Gone\Gone.vbp' 'StartupProject=HelloWorld\HelloWorld.vbp' 'Project=bad.vbg'
name=one.vbg group 'Project=two.vbg' 'Project=HelloWorld\HelloWorld.vbp'
name=two.vbg group 'Project=one.vbg'

say "Every member is built, and each image is in the depfile."
run fernwick build both.vbg --depfile both.d
grep : both.d
say "The worst status counts, and no depfile is written without every image."
rm both.d
printf 'Sub Broken()\r\n  x = = 1\r\nEnd Sub\r\n' >>AddressBook/modAddressBook.bas
runline 'fernwick build both.vbg --depfile both.d 2>/dev/null'
runline 'fernwick build both.vbg --quiet 2>/dev/null'
run ls both.d
runline "fernwick build both.vbg --format json 2>/dev/null | grep -E '\"(project|exitStatus|number)\"'"
run fernwick build bad.vbg
run fernwick validate bad.vbg
runline 'fernwick package both.vbg 2>/dev/null'
runline 'fernwick deploy both.vbg 2>/dev/null'
run fernwick clean both.vbg

say "Each file of a group is checked once. A member of a group is a project."
run fernwick check one.vbg
run fernwick check two.vbg
run fernwick check both.vbg AddressBook/modAddressBook.bas
run fernwick settings list both.vbg
run fernwick messages both.vbg

say "A dry run shows the plan of each member."
runline 'fernwick build --dry-run bad.vbg | grep -v library'
say "Members that would write the same file are refused before anything is written."
cp -r HelloWorld Copy
name=twins.vbg group 'StartupProject=HelloWorld\HelloWorld.vbp' 'Project=Copy\HelloWorld.vbp'
run fernwick build twins.vbg --output out
run fernwick package twins.vbg --output out
run ls out
runline 'fernwick build twins.vbg 2>/dev/null'
sed 's/^Name=.*/Name="Other"\r/' Copy/HelloWorld.vbp >Copy/Other.vbp
mv Copy/Other.vbp Copy/HelloWorld.vbp
run fernwick build --dry-run twins.vbg --output out
cp HelloWorld/HelloWorld.vbp HelloWorld/Same.vbp
name=same.vbg group 'StartupProject=HelloWorld\HelloWorld.vbp' 'Project=HelloWorld\Same.vbp'
run fernwick deploy same.vbg
