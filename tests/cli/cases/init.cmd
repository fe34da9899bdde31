mkdir Plain && cd Plain
crlf Plain.vbp <<'P'
Type=Exe
Reference=*\G{00020430-0000-0000-C000-000000000046}#2.0#0#..\..\..\Windows\System32\stdole2.tlb#OLE Automation
Reference=*\G{420B2830-E718-11CF-893D-00A0C9054228}#1.0#0#..\..\..\Windows\System32\scrrun.dll#Scripting
Form=Form1.frm
UserControl=Gauge.ctl
Startup="Form1"
Command32=""
Name="Plain"
MajorVer=1

[MS Transaction Server]
AutoRefresh=1
P
crlf Form1.frm <<'P'
VERSION 5.00
Begin VB.Form Form1 
   Caption         =   "Form1"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   Begin VB.CommandButton Command1 
      Height          =   495
      Left            =   120
      Top             =   120
      Width           =   1215
   End
End
Attribute VB_Name = "Form1"
Private Sub Command1_Click()
  x = = 1
End Sub
Private Sub Form_DblClick()
End Sub
P
crlf Gauge.ctl <<'P'
VERSION 5.00
Begin VB.UserControl Gauge 
   ClientHeight    =   360
   ScaleHeight     =   360
End
Attribute VB_Name = "Gauge"
P
cp Plain.vbp before
# the path of an installed library depends on the folder
short() { sed 's/#[^#]*QLDevice.dll#/#QLDevice.dll#/'; }
run fernwick init
run fernwick init --device Toaster
runline 'fernwick init --device palmos-dragonball' | short
same Plain.vbp before
runline 'fernwick init --device palmos-dragonball --yes' | short
same Plain.vbp.bak before
diff before Plain.vbp | tr -d '\r' | short
run fernwick recent
cp Plain.vbp once
say the second time changes nothing
run fernwick init --device PocketPC-SH3 --yes
same Plain.vbp once
ls
run fernwick info
say an old project
sed -i '/^ProjectVersion/d' Plain.vbp
run fernwick init --yes
