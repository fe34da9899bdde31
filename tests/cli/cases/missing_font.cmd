say "A font that no converted file has: one warning a build, however many controls want it; the build is good."
sample HelloWorld
cd HelloWorld
sed -i 's/^      Caption  .*/&\n      FontName        =   "Wingless"\r/' frmHello.frm
grep -c Wingless frmHello.frm
run fernwick build HelloWorld.vbp
run fernwick build HelloWorld.vbp
stored HelloWorld.vbp NumErrors
