module_project Lines <<'M'
Option Explicit
Public Sub Main()
Attribute Main.VB_Description = "Starts"
    Dim a As Long
    a = = 1
End Sub
M
cd Lines
say an attribute inside the code is a line of the file, but not of the code window
run fernwick build
run fernwick messages
stored Lines.vbp Error1
say line feeds
tr -d '\r' <modLines.bas >lf && mv lf modLines.bas
run fernwick build
run fernwick messages
stored Lines.vbp Error1
