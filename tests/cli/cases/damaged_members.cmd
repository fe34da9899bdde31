sample AddressBook
cd AddressBook
head -c 700 frmPerson.frm >cut && mv cut frmPerson.frm
rm modAddressBook.bas
mkdir modAddressBook.bas
sed -i 's/^Class=clsPerson; clsPerson.cls/&\nForm=frmList.frm\r\nModule=modGone; modGone.bas\r/' AddressBook.vbp
cp AddressBook.vbp before
run fernwick info
run fernwick info --verify
run fernwick check
same AddressBook.vbp before
run fernwick build
run ls
