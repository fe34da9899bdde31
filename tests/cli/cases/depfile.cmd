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
all: AddressBook.0000.qlx
AddressBook.0000.qlx:
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
cd ..
say the target is named as the project is, or as told
sample HelloWorld
run fernwick build --quiet HelloWorld/HelloWorld.vbp --depfile hello.d
run head -1 hello.d
run fernwick build --quiet "$PWD/HelloWorld/HelloWorld.vbp" --depfile hello.d
run head -2 hello.d
run fernwick build --quiet HelloWorld/HelloWorld.vbp --output made --depfile hello.d --depfile-target all
run head -2 hello.d
run fernwick build --quiet HelloWorld/HelloWorld.vbp --output made --depfile hello.d
run head -1 hello.d
