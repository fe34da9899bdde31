say "A missing font gives one warning per build, however many controls use it, and the build succeeds."
sample HelloWorld
cd HelloWorld
sed -i 's/^      Caption  .*/&\n      FontName        =   "Wingless"\r/' frmHello.frm
grep -c Wingless frmHello.frm
run fernwick build HelloWorld.vbp
run fernwick build HelloWorld.vbp
stored HelloWorld.vbp NumErrors
