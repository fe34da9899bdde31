say "A program of a module and a class."
printf 'Type=Exe\r\nModule=modShop; modShop.bas\r\nModule=TestShop; TestShop.bas\r\nClass=Item; Item.cls\r\nStartup="Sub Main"\r\nName="Shop"\r\n' >Shop.vbp
printf '%s\r\n' 'VERSION 1.0 CLASS' 'BEGIN' '  MultiUse = -1' 'END' 'Attribute VB_Name = "Item"' 'Public Price As Currency' 'Public Other As Item' >Item.cls
printf '%s\r\n' 'Attribute VB_Name = "modShop"' 'Public sold As Integer' 'Public Function Total(ByVal count As Integer) As Currency' \
    '  Dim one As New Item' '  one.Price = 12.5' '  sold = sold + count' '  Total = one.Price * count' 'End Function' \
    'Sub Main()' '  Debug.Print "Total:"; Total(3); Command$' '  Fill' 'End Sub' 'Private Sub Fill()' '  Dim prices(2) As Currency' \
    '  Dim first As New Item, second As New Item' '  Set first.Other = second' '  Set second.Other = first' \
    '  prices(sold) = 1' 'End Sub' >modShop.bas
printf '%s\r\n' 'Attribute VB_Name = "TestShop"' 'Public Sub TestTotal()' '  Debug.Assert Total(2) = 25' '  Debug.Assert sold = 2' \
    'End Sub' 'Public Sub TestSold()' '  Debug.Print "sold:"; sold' '  Debug.Assert sold = 1' 'End Sub' 'Private Sub TestHidden()' \
    'End Sub' 'Public Sub TestError()' '  Error 11' 'End Sub' >TestShop.bas
run fernwick run Shop.vbp
run fernwick run Shop.vbp --leaks --format json
run fernwick run Shop.vbp --budget 1
run fernwick run Shop.vbp --quiet one "two words"
say "Each test has fresh variables."
run fernwick test Shop.vbp
run fernwick test Shop.vbp --filter Total --junit results.xml
runline "sed -e 's/time=\"[0-9.]*\"/time=\"T\"/' results.xml"
run fernwick test Shop.vbp --filter Nothing
say "Errors of the check are reported as check does."
sed -i 's/Total(3)/Totl(3)/' modShop.bas
run fernwick run Shop.vbp
run fernwick test Shop.vbp
say "What cannot run."
sample HelloWorld
run fernwick run HelloWorld/HelloWorld.vbp
sed -i 's/Sub Main/Item/' Shop.vbp
run fernwick run Shop.vbp
run fernwick run none.vbp
run fernwick run Shop.vbp --budget nothing
