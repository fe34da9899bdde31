VERSION 5.00
Object = "{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0"; "Tavlets.dll"
Begin VB.Form frmList 
   BackColor       =   &H00FFFFFF&
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Address Book"
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
   LinkTopic       =   "frmList"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   160
   ScaleMode       =   3  'Pixel
   ScaleWidth      =   160
   StartUpPosition =   2  'CenterScreen
   Begin TavletsCtl.QLTextBox txtFind 
      Height          =   16
      Left            =   4
      TabIndex        =   0
      Top             =   4
      Width           =   152
      _ExtentX        =   4022
      _ExtentY        =   423
      MaxLength       =   30
      Text            =   ""
   End
   Begin TavletsCtl.QLListBox lstPeople 
      Height          =   94
      Left            =   4
      TabIndex        =   1
      Top             =   24
      Width           =   152
      _ExtentX        =   4022
      _ExtentY        =   2487
      Sorted          =   -1  'True
   End
   Begin TavletsCtl.QLLabel lblPhone 
      Height          =   14
      Left            =   4
      TabIndex        =   2
      Top             =   122
      Width           =   152
      _ExtentX        =   4022
      _ExtentY        =   370
      Caption         =   ""
   End
   Begin TavletsCtl.QLButton btnNew 
      Height          =   16
      Left            =   4
      TabIndex        =   3
      Top             =   140
      Width           =   46
      _ExtentX        =   1217
      _ExtentY        =   423
      Caption         =   "New"
   End
   Begin TavletsCtl.QLButton btnEdit 
      Height          =   16
      Left            =   56
      TabIndex        =   4
      Top             =   140
      Width           =   46
      _ExtentX        =   1217
      _ExtentY        =   423
      Caption         =   "Edit"
   End
   Begin TavletsCtl.QLButton btnDelete 
      Height          =   16
      Left            =   110
      TabIndex        =   5
      Top             =   140
      Width           =   46
      _ExtentX        =   1217
      _ExtentY        =   423
      Caption         =   "Delete"
   End
   Begin TavletsCtl.QLDatabase dbPeople 
      Left            =   132
      Top             =   24
      _ExtentX        =   635
      _ExtentY        =   635
      DatabaseName    =   "AddressBook"
      SortField       =   "LastName"
   End
End
Attribute VB_Name = "frmList"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' The list of all people. What is typed into the field narrows it down.
' Each row keeps the number of its record, which is good until a record is removed.

Private Sub Form_Load()
    If Not OpenBook(dbPeople) Then
        MsgBox "The address book could not be opened.", vbCritical, Me.Caption
        Unload Me
        Exit Sub
    End If
    ShowPeople
End Sub

Private Sub Form_Unload(Cancel As Integer)
    If dbPeople.IsOpen Then dbPeople.CloseDatabase
End Sub

Private Sub txtFind_Change()
    ShowPeople
End Sub

Private Sub lstPeople_Click()
    ShowChoice
End Sub

Private Sub lstPeople_DblClick()
    EditChoice
End Sub

Private Sub btnNew_Click()
    Dim person As clsPerson

    Set person = New clsPerson
    If Not frmPerson.Edit(person) Then Exit Sub
    If Not AddPerson(dbPeople, person) Then ReportFailure
    ShowPeople
End Sub

Private Sub btnEdit_Click()
    EditChoice
End Sub

Private Sub btnDelete_Click()
    Dim question As String

    If lstPeople.ListIndex < 0 Then Exit Sub
    question = "Delete " & lstPeople.List(lstPeople.ListIndex) & "?"
    If MsgBox(question, vbYesNo Or vbQuestion, Me.Caption) <> vbYes Then Exit Sub

    If Not RemovePerson(dbPeople, ChosenRecord()) Then ReportFailure
    ShowPeople
End Sub

Private Sub EditChoice()
    Dim person As clsPerson
    Dim record As Long

    If lstPeople.ListIndex < 0 Then Exit Sub
    record = ChosenRecord()
    Set person = PersonOf(dbPeople, record)
    If Not frmPerson.Edit(person) Then Exit Sub
    If Not ChangePerson(dbPeople, record, person) Then ReportFailure
    ShowPeople
End Sub

' Fills the list with everybody whose name begins with what stands in the field.
Private Sub ShowPeople()
    Dim person As clsPerson
    Dim record As Long

    lstPeople.Clear
    For record = 1 To dbPeople.RecordCount
        Set person = PersonOf(dbPeople, record)
        If person.BeginsWith(txtFind.Text) Then
            lstPeople.AddItem person.DisplayName
            lstPeople.ItemData(lstPeople.NewIndex) = record
        End If
    Next record
    ShowChoice
End Sub

Private Sub ShowChoice()
    Dim chosen As Boolean

    chosen = (lstPeople.ListIndex >= 0)
    btnEdit.Enabled = chosen
    btnDelete.Enabled = chosen
    If chosen Then
        lblPhone.Caption = PersonOf(dbPeople, ChosenRecord()).Phone
    Else
        lblPhone.Caption = ""
    End If
End Sub

Private Function ChosenRecord() As Long
    ChosenRecord = lstPeople.ItemData(lstPeople.ListIndex)
End Function

Private Sub ReportFailure()
    MsgBox "The entry could not be stored.", vbExclamation, Me.Caption
End Sub
