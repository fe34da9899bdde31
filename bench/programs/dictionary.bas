Attribute VB_Name = "Program"
Option Explicit
Sub Main()
  Dim c As New Collection, i As Long, t As Long
  For i = 1 To 300000
    c.Add i, "key" & i
  Next
  For i = 1 To 300000 Step 3
    t = (t + c("key" & i)) Mod 1000003
  Next
  Debug.Print t
End Sub
