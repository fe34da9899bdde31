Attribute VB_Name = "Program"
Option Explicit
Private Const N As Long = 20
Sub Main()
  Dim x(1 To N) As Double, y(1 To N) As Double, z(1 To N) As Double
  Dim vx(1 To N) As Double, vy(1 To N) As Double, vz(1 To N) As Double, m(1 To N) As Double
  Dim i As Long, j As Long, s As Long, dx As Double, dy As Double, dz As Double, d As Double, g As Double
  For i = 1 To N
    x(i) = i * 1.5: y(i) = i * 0.7 - 1: z(i) = i * i * 0.3
    vx(i) = i * 0.01: vy(i) = 0.02 - i * 0.001: vz(i) = i * 0.005: m(i) = 1 / (i + 1)
  Next
  For s = 1 To 15000
    For i = 1 To N
      For j = i + 1 To N
        dx = x(i) - x(j): dy = y(i) - y(j): dz = z(i) - z(j)
        d = dx * dx + dy * dy + dz * dz + 0.5
        g = 0.0001 / (d * Sqr(d))
        vx(i) = vx(i) - dx * m(j) * g: vy(i) = vy(i) - dy * m(j) * g: vz(i) = vz(i) - dz * m(j) * g
        vx(j) = vx(j) + dx * m(i) * g: vy(j) = vy(j) + dy * m(i) * g: vz(j) = vz(j) + dz * m(i) * g
      Next
    Next
    For i = 1 To N
      x(i) = x(i) + vx(i) * 0.0001: y(i) = y(i) + vy(i) * 0.0001: z(i) = z(i) + vz(i) * 0.0001
    Next
  Next
  Debug.Print x(1) + y(2) + z(3)
End Sub
