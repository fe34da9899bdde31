say "Reserved names, and properties and events that the device does not support, are reported with --forms, at their lines."
sample HelloWorld
cd HelloWorld
sed -i 's/^Attribute VB_Name = .*/Attribute VB_Name = "Option"\r/; s/^Begin VB.Form frmHello/Begin VB.Form Option/; s/ScaleMode *= *3.*/ScaleMode       =   1\r/' frmHello.frm
sed -i 's/^Startup=.*/Startup="Option"\r/' HelloWorld.vbp
printf 'Private Sub Form_Paint()\r\nEnd Sub\r\nPrivate Sub Form_MouseMove()\r\nEnd Sub\r\nPrivate Sub btnHello_DRAGDROP()\r\nEnd Sub\r\n' >>frmHello.frm
grep -n 'Form_Paint\|MouseMove\|DRAGDROP\|QLButton' frmHello.frm | tr -d '\r'
run fernwick validate HelloWorld.vbp
run fernwick validate HelloWorld.vbp --forms
run fernwick messages HelloWorld.vbp
