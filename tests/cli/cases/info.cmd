sample AddressBook
fernwick settings set AddressBook/AddressBook.vbp PreCompileSteps 'echo one'
run fernwick info AddressBook/AddressBook.vbp
run fernwick info AddressBook/AddressBook.vbp --format json
run fernwick info --verify AddressBook/AddressBook.vbp
run fernwick info --verify AddressBook/AddressBook.vbp --format json
say any project
mkdir plain
printf 'Type=OleDll\r\nReference=*\\G{11111111-2222-3333-4444-555555555555}#2e.0#0#..\\gone.dll#Gone\r\nClass=Thing; THING.CLS\r\nStartup="(None)"\r\nName="Plain"\r\n' >plain/plain.vbp
printf 'VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1\nEND\nAttribute VB_Name = "Thing"\nOption Explicit\nDim a' >plain/Thing.cls
run fernwick info plain/plain.vbp
say a group
printf 'VBGROUP 5.0\r\nStartupProject=plain\\plain.vbp\r\nProject=AddressBook\\AddressBook.vbp\r\n' >both.vbg
run fernwick info both.vbg
run fernwick info --verify both.vbg
printf 'VBGROUP 5.0\r\nProject=gone\\gone.vbp\r\n' >bad.vbg
run fernwick info bad.vbg
printf 'VBGROUP 5.0\r\nProject=gone\\gone.vbp\r\nProject=plain\\plain.vbp\r\n' >half.vbg
run fernwick info half.vbg
say "A folder is the only project in it."
mkdir one && cp "$SAMPLES/HelloWorld/"* one
runline 'fernwick info one | head -2'
run fernwick settings get one TargetDevice
run fernwick dependencies one list
runline 'fernwick build -q one/ 2>/dev/null'
run fernwick clean one
