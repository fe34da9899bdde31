Attribute VB_Name = "Program"
Option Explicit
Sub Main()
  Dim n As Long, px As Long, py As Long, k As Long, t As Long
  Dim cr As Double, ci As Double, zr As Double, zi As Double, w As Double
  n = 1000
  For py = 0 To n - 1
    ci = 2 * py / n - 1
    For px = 0 To n - 1
      cr = 3 * px / n - 2
      zr = 0: zi = 0: k = 0
      Do While k < 50
        w = zr * zr - zi * zi + cr
        zi = 2 * zr * zi + ci
        zr = w
        If zr * zr + zi * zi > 4 Then Exit Do
        k = k + 1
      Loop
      t = t + k
    Next
  Next
  Debug.Print t
End Sub
