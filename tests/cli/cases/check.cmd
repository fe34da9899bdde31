sample AddressBook
run fernwick check AddressBook/AddressBook.vbp
printf 'Sub a()\r\n  If x Then\r\n  y = = 2\r\nEnd Sub\r\nSub b(\r\nEnd Sub\r\n' >bad.bas
run fernwick check bad.bas AddressBook/modAddressBook.bas
run fernwick check bad.bas --format json
run fernwick check bad.bas --format sarif
run fernwick check bad.bas missing.bas
: >empty.bas
run fernwick check empty.bas
mkfifo pipe.bas
run fernwick check pipe.bas AddressBook
rm pipe.bas
mkdir tree
printf 'Type=Exe\r\nModule=modA; modA.bas\r\nCondComp="Bad = 1"\r\n' >tree/A.vbp
printf 'Sub a()\r\n#If Bad Then\r\n  y = = 2\r\n#End If\r\nEnd Sub\r\n' >tree/modA.bas
run fernwick check tree
say "all folders without sources, in one text"
mkdir empty bare
runline 'fernwick check empty bare --format json | grep failure'
