sample AddressBook
run fernwick check AddressBook/AddressBook.vbp
printf 'Sub a()\r\n  If x Then\r\n  y = = 2\r\nEnd Sub\r\nSub b(\r\nEnd Sub\r\n' >bad.bas
run fernwick check bad.bas AddressBook/modAddressBook.bas
run fernwick check bad.bas --format json
run fernwick check bad.bas --format sarif
run fernwick check bad.bas missing.bas
: >empty.bas
run fernwick check empty.bas
