sample AddressBook
cp AddressBook/AddressBook.vbp before
run fernwick build --dry-run AddressBook/AddressBook.vbp
run ls AddressBook
run fernwick settings set AddressBook/AddressBook.vbp PreCompileSteps --dry-run 'echo one' 'echo two'
same AddressBook/AddressBook.vbp before
fernwick settings set AddressBook/AddressBook.vbp PreCompileSteps 'echo one' 'echo two'
fernwick settings set AddressBook/AddressBook.vbp PostCompileSteps 'echo three'
run fernwick build -n AddressBook/AddressBook.vbp
run fernwick registry set 'HKEY_CURRENT_USER\Software\Quinloft' Name value --dry-run
run fernwick registry get 'HKEY_CURRENT_USER\Software\Quinloft' Name
run fernwick build -n AddressBook/AddressBook.vbp --output out
run ls out
