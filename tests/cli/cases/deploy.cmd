say "Sending compiles a project that was not compiled before, and lists the installed files."
sample AddressBook
cd AddressBook
run fernwick deploy AddressBook.vbp
say "An image as old as its sources is current; a source a nanosecond newer makes it compile again."
touch -r AddressBook.0000.qlx *.frm *.bas *.cls
run fernwick deploy AddressBook.vbp
touch -d "$(date -r AddressBook.0000.qlx +%Y-%m-%dT%H:%M:%S.%N | awk -F. '{printf "%s.%09d", $1, $2 + 1}')" frmList.frm
run fernwick deploy AddressBook.vbp
run fernwick install-runtime --device PalmOS-DragonBall
run fernwick deploy AddressBook.vbp --quiet

say "With an error in the code nothing is sent."
printf 'Sub Broken()\r\n  x = = 1\r\nEnd Sub\r\n' >>modAddressBook.bas
run fernwick deploy AddressBook.vbp
