VERSION 5.00
Object = "{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0"; "Tavlets.dll"
Begin VB.Form frmTip 
   BackColor       =   &H00FFFFFF&
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Tip Calculator"
   ClientHeight    =   4800
   ClientLeft      =   45
   ClientTop       =   435
   ClientWidth     =   3600
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "frmTip"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   320
   ScaleMode       =   3  'Pixel
   ScaleWidth      =   240
   StartUpPosition =   2  'CenterScreen
   Begin TavletsCtl.QLLabel lblAmount 
      Height          =   18
      Left            =   8
      TabIndex        =   0
      Top             =   12
      Width           =   90
      _ExtentX        =   2381
      _ExtentY        =   476
      Caption         =   "Bill"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLTextBox txtAmount 
      Height          =   20
      Left            =   104
      TabIndex        =   1
      Top             =   10
      Width           =   128
      _ExtentX        =   3387
      _ExtentY        =   529
      MaxLength       =   9
      NumericOnly     =   -1  'True
      Text            =   ""
      Alignment       =   1
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLLabel lblPercent 
      Height          =   18
      Left            =   8
      TabIndex        =   2
      Top             =   44
      Width           =   90
      _ExtentX        =   2381
      _ExtentY        =   476
      Caption         =   "Tip: 15 %"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLHScrollBar scrTip 
      Height          =   20
      Left            =   104
      TabIndex        =   3
      Top             =   42
      Width           =   128
      _ExtentX        =   3387
      _ExtentY        =   529
      Max             =   30
      Value           =   15
      LargeChange     =   5
   End
   Begin TavletsCtl.QLLabel lblPeople 
      Height          =   18
      Left            =   8
      TabIndex        =   4
      Top             =   76
      Width           =   90
      _ExtentX        =   2381
      _ExtentY        =   476
      Caption         =   "People"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLComboBox cboPeople 
      Height          =   20
      Left            =   104
      TabIndex        =   5
      Top             =   74
      Width           =   128
      _ExtentX        =   3387
      _ExtentY        =   529
      Style           =   2
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLCheckBox chkRound 
      Height          =   20
      Left            =   8
      TabIndex        =   6
      Top             =   106
      Width           =   224
      _ExtentX        =   5927
      _ExtentY        =   529
      Caption         =   "Round the total up"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLLine linResult 
      Left            =   8
      Top             =   0
      _ExtentX        =   635
      _ExtentY        =   635
      X1              =   8
      Y1              =   138
      X2              =   232
      Y2              =   138
   End
   Begin TavletsCtl.QLLabel lblTipTitle 
      Height          =   18
      Left            =   8
      TabIndex        =   7
      Top             =   150
      Width           =   90
      _ExtentX        =   2381
      _ExtentY        =   476
      Caption         =   "Tip"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLLabel lblTip 
      Height          =   18
      Left            =   104
      TabIndex        =   8
      Top             =   150
      Width           =   128
      _ExtentX        =   3387
      _ExtentY        =   476
      Caption         =   ""
      Alignment       =   1
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLLabel lblTotalTitle 
      Height          =   18
      Left            =   8
      TabIndex        =   9
      Top             =   176
      Width           =   90
      _ExtentX        =   2381
      _ExtentY        =   476
      Caption         =   "Total"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLLabel lblTotal 
      Height          =   18
      Left            =   104
      TabIndex        =   10
      Top             =   176
      Width           =   128
      _ExtentX        =   3387
      _ExtentY        =   476
      Caption         =   ""
      Alignment       =   1
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLLabel lblEachTitle 
      Height          =   18
      Left            =   8
      TabIndex        =   11
      Top             =   202
      Width           =   90
      _ExtentX        =   2381
      _ExtentY        =   476
      Caption         =   "Each pays"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLLabel lblEach 
      Height          =   18
      Left            =   104
      TabIndex        =   12
      Top             =   202
      Width           =   128
      _ExtentX        =   3387
      _ExtentY        =   476
      Caption         =   ""
      Alignment       =   1
      FontStyle       =   1
      FontName        =   "Tahoma"
      FontSize        =   8
   End
   Begin TavletsCtl.QLButton btnClear 
      Height          =   24
      Left            =   8
      TabIndex        =   13
      Top             =   240
      Width           =   80
      _ExtentX        =   2117
      _ExtentY        =   635
      Caption         =   "Clear"
      FontName        =   "Tahoma"
      FontSize        =   8
   End
End
Attribute VB_Name = "frmTip"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Shares the bill of a restaurant: the tip, the total, and what each person pays.

Private Const MOST_PEOPLE As Integer = 12
Private Const USUAL_TIP As Integer = 15

Private Sub Form_Load()
    Dim people As Integer

    For people = 1 To MOST_PEOPLE
        cboPeople.AddItem CStr(people)
    Next people
    Clear
End Sub

Private Sub btnClear_Click()
    Clear
    txtAmount.SetFocus
End Sub

Private Sub txtAmount_Change()
    ShowResult
End Sub

Private Sub scrTip_Change()
    ShowResult
End Sub

' The tip follows the pen while the bar is being moved.
Private Sub scrTip_Scroll()
    ShowResult
End Sub

Private Sub cboPeople_Click()
    ShowResult
End Sub

Private Sub chkRound_Click()
    ShowResult
End Sub

Private Sub Clear()
    txtAmount.Text = ""
    scrTip.Value = USUAL_TIP
    cboPeople.ListIndex = 0
    chkRound.Value = qlUnchecked
    ShowResult
End Sub

Private Sub ShowResult()
    Dim bill As Currency, tip As Currency, total As Currency
    Dim people As Integer

    lblPercent.Caption = "Tip: " & scrTip.Value & " %"
    bill = BillAmount()
    people = cboPeople.ListIndex + 1
    If bill = 0 Or people < 1 Then
        lblTip.Caption = ""
        lblTotal.Caption = ""
        lblEach.Caption = ""
        Exit Sub
    End If

    tip = bill * scrTip.Value / 100
    total = bill + tip
    If chkRound.Value = qlChecked Then
        total = RoundedUp(total)
        tip = total - bill
    End If
    lblTip.Caption = Format$(tip, "0.00")
    lblTotal.Caption = Format$(total, "0.00")
    lblEach.Caption = Format$(EachShare(total, people), "0.00")
End Sub

' What stands in the field as an amount; 0 as long as it is none.
Private Function BillAmount() As Currency
    If Not IsNumeric(txtAmount.Text) Then Exit Function
    BillAmount = CCur(txtAmount.Text)
    If BillAmount < 0 Then BillAmount = 0
End Function

Private Function RoundedUp(ByVal amount As Currency) As Currency
    RoundedUp = -Int(-amount)
End Function

' In whole cents, rounded up, so that the shares are never less than the total.
Private Function EachShare(ByVal total As Currency, ByVal people As Integer) As Currency
    EachShare = RoundedUp(total * 100 / people) / 100
End Function
