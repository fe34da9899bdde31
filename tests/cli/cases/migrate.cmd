say "An ordinary Visual Basic project on two devices."
mkdir Shop && cd Shop
crlf Shop.vbp <<'P'
Type=Exe
Reference=*\G{00020430-0000-0000-C000-000000000046}#2.0#0#..\..\stdole2.tlb#OLE Automation
Reference=*\G{00000205-0000-0010-8000-00AA006D2EA4}#2.5#0#..\msado25.tlb#Microsoft ActiveX Data Objects 2.5 Library
Reference=*\A..\Tools\Tools.vbp
Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX
Object={11111111-2222-3333-4444-555555555555}#1.0#0; Gauge.ocx
Form=frmShop.frm
Form=mdiShop.frm
Module=modShop; modShop.bas
UserControl=Dial.ctl
Name="Shop"
P
crlf frmShop.frm <<'P'
VERSION 5.00
Begin VB.Form frmShop 
   ClientHeight    =   3195
   ClientWidth     =   4680
   Begin VB.CommandButton cmdPrint 
      Caption         =   "Print"
   End
   Begin MSComctlLib.ListView lvwItems 
   End
   Begin Gauge.Needle Needle1 
   End
   Begin Tavlets.QLLabel lblTotal 
   End
   Begin VB.Frame fraTotal 
      Begin VB.OLE oleTotal 
      End
   End
End
Attribute VB_Name = "frmShop"
Option Explicit
Private items As ADODB.Recordset
Private Sub cmdPrint_Click()
  Printer.Print "Total"
  PrintForm
  MousePointer = 11
End Sub
P
crlf mdiShop.frm <<'P'
VERSION 5.00
Begin VB.MDIForm mdiShop 
End
Attribute VB_Name = "mdiShop"
P
crlf modShop.bas <<'P'
Attribute VB_Name = "modShop"
Option Explicit
Private Declare Function FindWindow Lib "user32" Alias "FindWindowA" (ByVal c As String, ByVal w As String) As Long
Private Declare Sub Sleep Lib "kernel32" (ByVal ms As Long)
Private Declare Sub Beam Lib "beam.dll" ()
Sub Main()
  Dim book As Object
  Sleep FindWindow("a", "b")
  Shell "notepad.exe"
  Set book = CreateObject("Excel.Application")
  SendKeys "a" ' fernwick: ignore 2803
End Sub
P
crlf Dial.ctl <<'P'
VERSION 5.00
Begin VB.UserControl Dial 
End
Attribute VB_Name = "Dial"
P
cp -r . ../before
run fernwick check Shop.vbp --migrate palmos-dragonball
run fernwick check --migrate LinuxHandheld-ARM --format json
runline 'fernwick check Shop.vbp --migrate PocketPC-ARM --format sarif | grep -e ruleId -e level -e startLine'
diff -r ../before . && say "Nothing is written."
say "Code with errors is left."
printf 'Attribute VB_Name = "modShop"\r\nSub Main()\r\n  x = = 1\r\nEnd Sub\r\n' >modShop.bas
run fernwick check Shop.vbp --migrate PalmOS-DragonBall
say "A file is missing."
rm modShop.bas
run fernwick check Shop.vbp --migrate PalmOS-DragonBall
cd ..
say "What cannot be reported about."
run fernwick check Shop/Shop.vbp --migrate Toaster
run fernwick check Shop/modShop.bas --migrate PalmOS-DragonBall
run fernwick check Gone.vbp --migrate PalmOS-DragonBall
run fernwick check Shop/Shop.vbp --migrate PalmOS-DragonBall --warn
say "A sample needs nothing."
sample HelloWorld
run fernwick check HelloWorld/HelloWorld.vbp --migrate PalmOS-DragonBall
