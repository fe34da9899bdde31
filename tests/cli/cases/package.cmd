say "Packing compiles if needed, and gives the same bytes for the same project."
sample AddressBook
cd AddressBook
run fernwick package AddressBook.vbp
sha256sum *.qlpkg >first
run fernwick package AddressBook.vbp
sha256sum -c first
run fernwick package --list AddressBook.PalmOS-DragonBall.qlpkg
run fernwick package --verify AddressBook.PalmOS-DragonBall.qlpkg
unzip -tq AddressBook.PalmOS-DragonBall.qlpkg

say "A truncated package, a changed one, and a file that is not a package."
head -c 1000 AddressBook.PalmOS-DragonBall.qlpkg >short.qlpkg
run fernwick package --verify short.qlpkg
cp AddressBook.PalmOS-DragonBall.qlpkg changed.qlpkg
printf x >AddressBook.0000.qlx
zip -q changed.qlpkg AddressBook.0000.qlx
run fernwick package --verify changed.qlpkg
run fernwick deploy changed.qlpkg --device PalmOS-DragonBall
run fernwick package --list AddressBook.vbp
run fernwick package --verify missing.qlpkg

say "A device installs from a package."
run fernwick deploy AddressBook.PalmOS-DragonBall.qlpkg

say "A package without an application."
python3 - <<'END'
import json, zipfile
with zipfile.ZipFile("AddressBook.PalmOS-DragonBall.qlpkg") as whole, zipfile.ZipFile("Fonts.qlpkg", "w") as fonts:
    manifest = json.loads(whole.read("manifest.json"))
    manifest["files"] = [file for file in manifest["files"] if file["kind"] == "font"]
    fonts.writestr("manifest.json", json.dumps(manifest))
    for file in manifest["files"]:
        fonts.writestr(file["path"], whole.read(file["path"]))
END
run fernwick package --list Fonts.qlpkg
run fernwick deploy Fonts.qlpkg
say "What the project sets for its application is in the package."
rm AddressBook.0000.qlx
run fernwick settings set AddressBook.vbp PalmOSCreatorID AdBk
run fernwick settings set AddressBook.vbp PalmOSMemoryLimit 64
run fernwick package AddressBook.vbp --device PalmOS-DragonBall --yes --quiet
run fernwick package --list AddressBook.PalmOS-DragonBall.qlpkg
sed -i 's/^MemoryLimit=64/MemoryLimit=640/' AddressBook.vbp
run fernwick package AddressBook.vbp --device PalmOS-DragonBall --yes --quiet
