Attribute VB_Name = "Program"
Option Explicit
Sub Main()
  Dim s As String, i As Long, t As Long
  For i = 1 To 2000000
    s = s & "line " & i & ";"
    If Len(s) > 10000 Then
      t = t + Len(s)
      s = ""
    End If
  Next
  Debug.Print t + Len(s)
End Sub
