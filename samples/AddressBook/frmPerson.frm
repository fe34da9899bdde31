VERSION 5.00
Object = "{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0"; "Tavlets.dll"
Begin VB.Form frmPerson 
   BackColor       =   &H00FFFFFF&
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Entry"
   ClientHeight    =   2400
   ClientLeft      =   45
   ClientTop       =   435
   ClientWidth     =   2400
   BeginProperty Font 
      Name            =   "QLPalm"
      Size            =   12
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "frmPerson"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   160
   ScaleMode       =   3  'Pixel
   ScaleWidth      =   160
   StartUpPosition =   2  'CenterScreen
   Begin TavletsCtl.QLLabel lblLastName 
      Height          =   14
      Left            =   4
      TabIndex        =   0
      Top             =   8
      Width           =   50
      _ExtentX        =   1323
      _ExtentY        =   370
      Caption         =   "Last name"
   End
   Begin TavletsCtl.QLTextBox txtLastName 
      Height          =   16
      Left            =   58
      TabIndex        =   1
      Top             =   6
      Width           =   98
      _ExtentX        =   2593
      _ExtentY        =   423
      MaxLength       =   30
      Text            =   ""
   End
   Begin TavletsCtl.QLLabel lblFirstName 
      Height          =   14
      Left            =   4
      TabIndex        =   2
      Top             =   32
      Width           =   50
      _ExtentX        =   1323
      _ExtentY        =   370
      Caption         =   "First name"
   End
   Begin TavletsCtl.QLTextBox txtFirstName 
      Height          =   16
      Left            =   58
      TabIndex        =   3
      Top             =   30
      Width           =   98
      _ExtentX        =   2593
      _ExtentY        =   423
      MaxLength       =   30
      Text            =   ""
   End
   Begin TavletsCtl.QLLabel lblPhone 
      Height          =   14
      Left            =   4
      TabIndex        =   4
      Top             =   56
      Width           =   50
      _ExtentX        =   1323
      _ExtentY        =   370
      Caption         =   "Phone"
   End
   Begin TavletsCtl.QLTextBox txtPhone 
      Height          =   16
      Left            =   58
      TabIndex        =   5
      Top             =   54
      Width           =   98
      _ExtentX        =   2593
      _ExtentY        =   423
      MaxLength       =   20
      Text            =   ""
   End
   Begin TavletsCtl.QLLabel lblEMail 
      Height          =   14
      Left            =   4
      TabIndex        =   6
      Top             =   80
      Width           =   50
      _ExtentX        =   1323
      _ExtentY        =   370
      Caption         =   "E-mail"
   End
   Begin TavletsCtl.QLTextBox txtEMail 
      Height          =   16
      Left            =   58
      TabIndex        =   7
      Top             =   78
      Width           =   98
      _ExtentX        =   2593
      _ExtentY        =   423
      MaxLength       =   50
      Text            =   ""
   End
   Begin TavletsCtl.QLButton btnOK 
      Height          =   18
      Left            =   4
      TabIndex        =   8
      Top             =   136
      Width           =   60
      _ExtentX        =   1588
      _ExtentY        =   476
      Caption         =   "OK"
      Default         =   -1  'True
   End
   Begin TavletsCtl.QLButton btnCancel 
      Height          =   18
      Left            =   72
      TabIndex        =   9
      Top             =   136
      Width           =   60
      _ExtentX        =   1588
      _ExtentY        =   476
      Caption         =   "Cancel"
      Cancel          =   -1  'True
   End
End
Attribute VB_Name = "frmPerson"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Lets the user change one entry.

Private mAccepted As Boolean

' Shows the entry. True when the user has accepted it; then `person` holds what was typed.
Public Function Edit(ByVal person As clsPerson) As Boolean
    txtLastName.Text = person.LastName
    txtFirstName.Text = person.FirstName
    txtPhone.Text = person.Phone
    txtEMail.Text = person.EMail
    mAccepted = False
    Me.Show vbModal

    If mAccepted Then TakeOver person
    Edit = mAccepted
    Unload Me
End Function

Private Sub btnOK_Click()
    Dim typed As clsPerson

    Set typed = New clsPerson
    TakeOver typed
    If Not typed.HasName Then
        MsgBox "An entry needs a name.", vbExclamation, Me.Caption
        txtLastName.SetFocus
        Exit Sub
    End If
    mAccepted = True
    Me.Hide
End Sub

Private Sub btnCancel_Click()
    Me.Hide
End Sub

Private Sub TakeOver(ByVal person As clsPerson)
    person.LastName = Trim$(txtLastName.Text)
    person.FirstName = Trim$(txtFirstName.Text)
    person.Phone = Trim$(txtPhone.Text)
    person.EMail = Trim$(txtEMail.Text)
End Sub
