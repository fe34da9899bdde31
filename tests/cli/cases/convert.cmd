sample HelloWorld
cd HelloWorld
cp HelloWorld.vbp before
run fernwick convert --to PocketPC-SH3
run fernwick convert --in-place
run fernwick convert --to Toaster --in-place
run fernwick convert --to PocketPC-SH3 --output Copy.vbp
run fernwick convert --to palmos-dragonball --in-place
same HelloWorld.vbp before
ls
run fernwick convert --to PocketPC-SH3 --in-place --dry-run
run fernwick convert --to PocketPC-SH3 --output ../new/deep/Pocket --dry-run
same HelloWorld.vbp before
run find ../new
run fernwick convert --to pocketpc-sh3 --output ../new/deep/Pocket
same HelloWorld.vbp before
find ../new | sort
run fernwick recent
diff before ../new/deep/Pocket.vbp
run fernwick check ../new/deep/Pocket.vbp
run fernwick convert --to PocketPC-ARM --output ../new/deep/Pocket.vbp
run fernwick convert --to PocketPC-ARM --output ../new/deep/Pocket.vbp --dry-run
run fernwick convert --to PocketPC-ARM --output ../new/deep/Pocket.vbp --yes
grep -a TargetDevice ../new/deep/Pocket.vbp
run fernwick convert --to PocketPC-SH3 --in-place
same HelloWorld.vbp.bak before
diff before HelloWorld.vbp
run fernwick convert --to PocketPC-ARM --in-place --format json
ls
rm frmHello.frm
run fernwick convert --to PocketPC-SH3 --output ../third/Gone.vbp
