Attribute VB_Name = "modAddressBook"
Option Explicit

' The data base behind the address book.

Private Const BOOK_NAME As String = "AddressBook"
Private Const BOOK_FIELDS As String = "LastName;FirstName;Phone;EMail"

' Opens the book, and makes an empty one the first time. False when the device refuses.
Public Function OpenBook(ByVal book As QLDatabase) As Boolean
    OpenBook = book.OpenDatabase(BOOK_NAME)
    If OpenBook Then Exit Function

    If book.CreateDatabase(BOOK_NAME, BOOK_FIELDS) Then
        OpenBook = book.OpenDatabase(BOOK_NAME)
    End If
End Function

' The entry of a record.
Public Function PersonOf(ByVal book As QLDatabase, ByVal record As Long) As clsPerson
    Set PersonOf = New clsPerson
    book.RecordNumber = record
    PersonOf.ReadFrom book
End Function

Public Function AddPerson(ByVal book As QLDatabase, ByVal person As clsPerson) As Boolean
    book.AddNew
    person.WriteTo book
    AddPerson = book.Update()
End Function

Public Function ChangePerson(ByVal book As QLDatabase, ByVal record As Long, _
                             ByVal person As clsPerson) As Boolean
    book.RecordNumber = record
    person.WriteTo book
    ChangePerson = book.Update()
End Function

Public Function RemovePerson(ByVal book As QLDatabase, ByVal record As Long) As Boolean
    book.RecordNumber = record
    RemovePerson = book.Delete()
End Function
