VERSION 5.00
Object = "{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0"; "Tavlets.dll"
Begin VB.Form frmHello 
   BackColor       =   &H00FFFFFF&
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Hello World"
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
   LinkTopic       =   "frmHello"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   160
   ScaleMode       =   3  'Pixel
   ScaleWidth      =   160
   StartUpPosition =   2  'CenterScreen
   Begin TavletsCtl.QLLabel lblQuestion 
      Height          =   14
      Left            =   8
      TabIndex        =   0
      Top             =   10
      Width           =   144
      _ExtentX        =   3810
      _ExtentY        =   370
      Caption         =   "What is your name?"
   End
   Begin TavletsCtl.QLTextBox txtName 
      Height          =   16
      Left            =   8
      TabIndex        =   1
      Top             =   28
      Width           =   144
      _ExtentX        =   3810
      _ExtentY        =   423
      MaxLength       =   30
      Text            =   ""
   End
   Begin TavletsCtl.QLButton btnHello 
      Height          =   18
      Left            =   8
      TabIndex        =   2
      Top             =   52
      Width           =   70
      _ExtentX        =   1852
      _ExtentY        =   476
      Caption         =   "Say hello"
      Default         =   -1  'True
   End
   Begin TavletsCtl.QLLabel lblGreeting 
      Height          =   40
      Left            =   8
      TabIndex        =   3
      Top             =   84
      Width           =   144
      _ExtentX        =   3810
      _ExtentY        =   1058
      Caption         =   ""
      WordWrap        =   -1  'True
   End
End
Attribute VB_Name = "frmHello"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Greets the user by name, and remembers the name for the next time.

Private Const NAME_PREFERENCE As String = "Name"

Private Sub Form_Load()
    txtName.Text = GetPreference(NAME_PREFERENCE)
    lblGreeting.Caption = ""
End Sub

Private Sub btnHello_Click()
    Dim who As String

    who = Trim$(txtName.Text)
    If Len(who) > 0 Then SetPreference NAME_PREFERENCE, who
    lblGreeting.Caption = Greeting(who)
End Sub

' A new name wants a new greeting.
Private Sub txtName_Change()
    lblGreeting.Caption = ""
End Sub

Private Function Greeting(ByVal who As String) As String
    If Len(who) = 0 Then who = "world"
    Select Case Hour(Now)
        Case 5 To 11
            Greeting = "Good morning, " & who & "!"
        Case 18 To 23
            Greeting = "Good evening, " & who & "!"
        Case Else
            Greeting = "Hello, " & who & "!"
    End Select
End Function
