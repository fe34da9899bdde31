cp -r "$SAMPLES/AddressBook" 'Address Book $1'
cd 'Address Book $1'
run fernwick build --quiet --depfile book.d
run cat book.d
cat >Makefile <<'M'
all: AddressBook.0000.qlx
AddressBook.0000.qlx: AddressBook.vbp
	fernwick build --quiet --depfile book.d
M
say make has nothing to do
run make --no-print-directory
cd .. && cp -r "$SAMPLES/AddressBook" plain && cd plain
cat >Makefile <<'M'
all: $(CURDIR)/AddressBook.0000.qlx
$(CURDIR)/AddressBook.0000.qlx:
	@fernwick build --quiet --depfile book.d
-include book.d
M
run make --no-print-directory
run make --no-print-directory
say one source is newer
touch modAddressBook.bas
run make --no-print-directory
run make --no-print-directory
say a deleted source is reported by fernwick, not by make
rm modAddressBook.bas
run make --no-print-directory
