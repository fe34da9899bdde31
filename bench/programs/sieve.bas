Attribute VB_Name = "Program"
Option Explicit
Sub Main()
  Dim n As Long, a() As Byte, i As Long, j As Long, c As Long
  n = 4000000
  ReDim a(n)
  For i = 2 To n
    If a(i) = 0 Then
      c = c + 1
      For j = i + i To n Step i
        a(j) = 1
      Next
    End If
  Next
  Debug.Print c
End Sub
