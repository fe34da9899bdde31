say "Mistakes in each sample: a variable, a member, an argument, a type, an event and a label."
sample HelloWorld
sed -i -e 's/who = Trim/woh = Trim/' -e 's/Greeting(who)/Greeting(who, 1)/' -e 's/txtName.Text)/txtName.Txt)/' \
    -e 's/Dim who As String/Dim who As Strng/' -e 's/txtName_Change/txtName_Chang/' \
    -e 's/If Len(who) = 0 Then who = "world"/If Len(who) = 0 Then GoTo World/' HelloWorld/frmHello.frm
run fernwick check HelloWorld/HelloWorld.vbp
sample TipCalculator
sed -i -e 's/bill = BillAmount()/bil = BillAmount()/' -e 's/txtAmount.SetFocus/txtAmount.SetFocs/' \
    -e 's/EachShare(total, people)/EachShare(total)/' -e 's/As Integer = 12/As Intger = 12/' \
    -e 's/scrTip_Scroll()/scrTip_Scrol()/' -e 's/        Exit Sub/        GoTo Done/' TipCalculator/frmTip.frm
run fernwick check TipCalculator/TipCalculator.vbp
sample AddressBook
sed -i -e 's/OpenBook = book.Open/OpenBok = book.Open/' -e 's/person.WriteTo book/person.WriteTo bok:=book/' \
    -e 's/book.AddNew/book.AddNow/' -e 's/As clsPerson$/As clsPersn/' -e 's/If OpenBook Then Exit Function/If OpenBook Then GoTo Done/' \
    AddressBook/modAddressBook.bas
sed -i -e 's/lstPeople_DblClick()/lstPeople_DblClik()/' AddressBook/frmList.frm
run fernwick check AddressBook/AddressBook.vbp
say "What is allowed but seldom meant."
printf 'Type=Exe\r\nName="Shop"\r\nModule=modShop; modShop.bas\r\n' >Shop.vbp
printf 'Attribute VB_Name = "modShop"\r\nSub Main()\r\n  Dim a, b As Integer\r\n  c = 200 * 400\r\n  Exit Sub\r\n  b = 1\r\nEnd Sub\r\n' >modShop.bas
run fernwick check Shop.vbp
run fernwick check Shop.vbp --warn
say "A library that is not described may have any name; each is mentioned once."
printf 'Type=Exe\r\nName="Shop"\r\nReference=*\\G{11111111-2222-3333-4444-555555555555}#1.0#0#Gone.dll#Gone\r\nModule=modShop; modShop.bas\r\n' >Shop.vbp
printf 'Attribute VB_Name = "modShop"\r\nOption Explicit\r\nSub Main()\r\n  Dim x As New Thing\r\n  x.Any goneConstant\r\n  x.Other goneConstant\r\nEnd Sub\r\n' >modShop.bas
run fernwick check Shop.vbp
