Attribute VB_Name = "Everyday"
Option Explicit

' A module with the statements that programs mostly consist of, to measure the code that the compiler makes of them.

Private Const kMostItems As Long = 200

Private Type Item
    Name As String
    Price As Double
    Count As Integer
    Marked As Boolean
End Type

Private items(1 To kMostItems) As Item
Private itemCount As Long
Private lastError As String

Public Sub Main()
    Dim total As Double
    Dim word As Variant
    AddItem "Pencil", 0.75, 12
    AddItem "Ruler", 2.5, 3
    AddItem "Paper", 4, 1
    MarkItems "P*"
    total = TotalOf(True)
    Debug.Print "Total: " & Format$(total, "0.00")
    For Each word In Split(Describe(2), " ")
        Debug.Print UCase$(Left$(word, 1)) & Mid$(word, 2)
    Next
    If Len(lastError) > 0 Then Debug.Print lastError
End Sub

Private Sub AddItem(ByVal name As String, ByVal price As Double, Optional ByVal count As Integer = 1)
    On Error GoTo Failed
    If itemCount >= kMostItems Then
        lastError = "Too many items"
        Exit Sub
    End If
    itemCount = itemCount + 1
    With items(itemCount)
        .Name = Trim$(name)
        .Price = price
        .Count = count
        .Marked = False
    End With
    Exit Sub
Failed:
    lastError = Err.Description
    Debug.Print "AddItem: " & CStr(Err.Number) & ", " & lastError
End Sub

Private Sub MarkItems(pattern As String)
    Dim i As Long
    For i = 1 To itemCount
        items(i).Marked = items(i).Name Like pattern
    Next i
End Sub

Private Function TotalOf(ByVal onlyMarked As Boolean) As Double
    Dim i As Long, sum As Double
    For i = 1 To itemCount
        If items(i).Marked Or Not onlyMarked Then
            sum = sum + items(i).Price * items(i).Count
        End If
    Next i
    If sum < 0 Then sum = 0
    TotalOf = sum
End Function

Private Function KindOf(ByVal count As Integer) As String
    Select Case count
        Case 0
            KindOf = "no"
        Case 1
            KindOf = "one"
        Case 2 To 9
            KindOf = "some"
        Case Is < 0
            KindOf = "missing"
        Case Else
            KindOf = "many"
    End Select
End Function

Private Function Describe(ByVal index As Long) As String
    Dim text As String
    If index < 1 Or index > itemCount Then
        Describe = ""
        Exit Function
    End If
    text = KindOf(items(index).Count) & " of " & items(index).Name
    If items(index).Marked Then text = text & " (marked)"
    Describe = text
End Function

Public Function IndexOf(values() As String, ByVal wanted As String) As Long
    Dim i As Long
    IndexOf = -1
    For i = LBound(values) To UBound(values)
        If StrComp(values(i), wanted, vbTextCompare) = 0 Then
            IndexOf = i
            Exit For
        End If
    Next
End Function

Public Function Checksum(bytes() As Byte) As Long
    Dim i As Long, low As Long, high As Long
    low = 1
    Do While i <= UBound(bytes)
        low = (low + bytes(i)) Mod 65521
        high = (high + low) Mod 65521
        i = i + 1
    Loop
    Checksum = (high And &H7FFF&) * &H10000 Or low
End Function

Public Function Grouped(list As Collection, ByVal separator As String) As String
    Dim entry As Variant, result As String
    For Each entry In list
        If result <> "" Then result = result & separator
        result = result & CStr(entry)
    Next
    If list.Count = 0 Then result = "(none)"
    Grouped = result
End Function
