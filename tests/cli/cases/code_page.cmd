say a project in Big5 whose names and code have no other hint
mkdir big5
in_big5() { iconv -f UTF-8 -t BIG5 | crlf "$1"; }
printf 'Attribute VB_Name = "modMain"\nPublic Function 計算(ByVal 數量 As Long) As Long\n    計算 = 數量 * 2 + 小計\nEnd Function\n' |
  in_big5 big5/modMain.bas
printf 'Type=Exe\nModule=modMain; modMain.bas\nStartup="(None)"\nName="Big5"\n' | in_big5 big5/Big5.vbp
run fernwick check big5/Big5.vbp
run fernwick check -q big5/Big5.vbp
run fernwick check big5/modMain.bas
run fernwick check --code-page 950 big5/Big5.vbp
run fernwick info --verify big5/Big5.vbp
say the project file decides
printf 'CodePage=949\r\n' >>big5/Big5.vbp
run fernwick check -v big5/Big5.vbp
say unknown pages
run fernwick check --code-page 12345 big5/Big5.vbp
run fernwick check --code-page x big5/Big5.vbp
say a build reads the same page
printf 'Public Sub Main()\n    Dim 數量 As Long\n    數量 = 計算(1)\nEnd Sub\n\nPublic Function 計算(ByVal 值 As Long) As Long\n    計算 = 值 * 2\nEnd Function\n' |
  iconv -f UTF-8 -t BIG5 | module_project Names
run fernwick build Names/Names.vbp
grep -qa 計算 Names/Names.0000.qlx && say "the image has the names"
say "Every command reads the names in a given page."
module_project Given <<<'Public Sub Main(): End Sub'
printf 'Name="計算"\r\n' | iconv -f UTF-8 -t BIG5 >name
sed -i -e '/^Name=/{r name' -e 'd}' Given/Given.vbp
runline 'fernwick info Given/Given.vbp --code-page 950 | head -1'
run fernwick build -q Given/Given.vbp --code-page 950
run fernwick clean Given/Given.vbp --code-page 950
say "The messages of a build have names in the page of the project file."
printf 'Option Explicit\nPublic Sub Main()\n    итого = 1\nEnd Sub\n' | iconv -f UTF-8 -t CP1251 | module_project Total
sed -i '/^Name=/a CodePage=1251\r' Total/Total.vbp
run fernwick build -q Total/Total.vbp
