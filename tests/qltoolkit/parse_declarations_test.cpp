#include "tests/qltoolkit/ast_dump.h"
#include <gtest/gtest.h>

using qltoolkit::dump::declarations;
using qltoolkit::dump::Pair;
using qltoolkit::dump::Parsed;

namespace {

void expectDeclarations(std::initializer_list<Pair> pairs) {
    for (const auto& [source, dump] : pairs) EXPECT_EQ(declarations(source), dump) << source;
}

} // namespace

TEST(ParseDeclarations, Options) {
    expectDeclarations({{"Option Explicit", "(option explicit)"},
                        {"Option Base 1", "(option base 1)"},
                        {"Option Compare Text", "(option compare text)"},
                        {"Option Compare Binary", "(option compare binary)"},
                        {"Option Compare Database", "(option compare database)"},
                        {"Option Private Module", "(option private module)"},
                        {"Option Strict", "1:8 1307"},
                        {"Option Compare Me", "1:16 1307"},
                        {"Option Base 2", "1:13 1308"},
                        {"Option Explicit On", "1:17 1501"}});
}

TEST(ParseDeclarations, DefTypes) {
    expectDeclarations(
        {{"DefInt A-C", "(def Integer ABC)"},
         {"DefLng I, X-Z", "(def Long IXYZ)"},
         {"DefStr s: DefVar V", "(def String S) (def Variant V)"},
         {"DefBool b: DefByte y: DefCur c: DefDate d: DefDbl f: DefObj o: DefSng g",
          "(def Boolean B) (def Byte Y) (def Currency C) (def Date D) (def Double F) (def Object O) (def Single G)"},
         {"DefInt 5", "1:8 1309"},
         {"DefInt AB", "1:8 1309"}});
}

TEST(ParseDeclarations, VariablesAndConstants) {
    expectDeclarations({{"Dim a", "(dim a)"},
                        {"Public a As Long, b$", "(public:dim a:Long b$)"},
                        {"Private a(1 To 3) As Byte", "(private:dim a[1..3]:Byte)"},
                        {"Global g As Object", "(global:dim g:Object)"},
                        {"Private WithEvents t As Timer", "(private:dim withevents:t:Timer)"},
                        {"Public WithEvents t As Lib.Timer, n", "(public:dim withevents:t:Lib.Timer n)"},
                        {"Dim c As New Collection", "(dim c:new:Collection)"},
                        {"Const a = 1", "(const a=1)"},
                        {"Public Const a As Long = &HFF, b = \"x\" & a", "(public:const a:Long=255 b=(& \"x\" a))"},
                        {"Private Const k% = 5", "(private:const k%=5)"},
                        {"Public Implements As Long", "1:8 1301"},
                        {"Private WithEvents t(5) As Timer", "1:20 1325"},
                        {"Private WithEvents t As New Timer", "1:20 1325"},
                        {"Public 5", "1:8 1304"}});
}

TEST(ParseDeclarations, Types) {
    expectDeclarations({{"Type T\na As Long\nEnd Type", "(type T a:Long)"},
                        {"Private Type T\n a As Long ' one\n\n b(3) As T2\n c() As Byte\n s As String * 5\nEnd Type",
                         "(private:type T a:Long b[3]:T2 c[]:Byte s:String*5)"},
                        {"Public Type T: a As Long: b%: End Type", "(public:type T a:Long b%)"},
                        {"Type T\nType As Long\nEnd As Long\nNext(2) As Long\nPublic As Long\nDate As Date\nEnd Type",
                         "(type T Type:Long End:Long Next[2]:Long Public:Long Date:Date)"},
                        {"Type T\nRem one\na As Long\nEnd Type", "(type T a:Long)"},
                        {"Type T\nEnd Type", "1:1 1329"},
                        {"Type T\na\nb As Long\nEnd Type", "2:2 1303"},
                        {"Type T\na As Long\nSub S()\nEnd Sub", "1:1 1313"},
                        {"Type T\na As Long\n", "1:1 1313"},
                        {"Type 5\na As Long\nEnd Type", "1:6 1300"}});
}

TEST(ParseDeclarations, Enums) {
    expectDeclarations({{"Enum E\na\nb = 5\nc = b + 1\nEnd Enum", "(enum E a b=5 c=(+ b 1))"},
                        {"Public Enum E\n [_First] = 1 ' hidden\n a\nEnd Enum", "(public:enum E _First=1 a)"},
                        {"Private Enum E: a: b: End Enum", "(private:enum E a b)"},
                        {"Enum E\na =\nb\nEnd Enum", "2:4 1800"},
                        {"Enum E\na\nPublic x As Long", "1:1 1314"},
                        {"Enum E\nNext\nEnd Enum", "2:1 1301"}});
}

TEST(ParseDeclarations, Declare) {
    expectDeclarations(
        {{"Declare Sub Beep Lib \"kernel32\"", "(declare sub Beep[] \"kernel32\")"},
         {"Private Declare Function F& Lib \"a\" Alias \"FA\" (ByVal x As Long, y As Any, z() As Byte) As Long",
          "(private:declare function F&[byval:x:Long y:Any z[]:Byte]:Long \"a\" \"FA\")"},
         {"Public Declare Function F Lib \"a\" Alias \"#12\" (ByVal s$) As Long",
          "(public:declare function F[byval:s$]:Long \"a\" \"#12\")"},
         {"Declare Sub S CDecl Lib \"a\" ()", "(declare sub S[] \"a\")"},
         {"Declare Function F& CDecl Lib \"a\" Alias \"f\" (ByVal x As Long)",
          "(declare function F&[byval:x:Long] \"a\" \"f\")"},
         {"Declare Sub S Lib \"a\" (Optional ByVal x As Long, ParamArray y() As Variant)",
          "(declare sub S[optional:byval:x:Long paramarray:y[]:Variant] \"a\")"},
         {"Declare Sub S \"a\"", "1:15 1310"},
         {"Declare Sub S Lib a", "1:19 1311"},
         {"Declare Sub S Lib \"a\" Alias \"#1x\"", "1:29 1331"},
         {"Declare S Lib \"a\"", "1:9 1304"}});
}

TEST(ParseDeclarations, EventsAndInterfaces) {
    expectDeclarations(
        {{"Implements IShape", "(implements IShape)"},
         {"Implements Lib.IShape", "(implements Lib.IShape)"},
         {"Event Done()", "(event Done[])"},
         {"Public Event Moved(ByVal x As Long, y As Single)", "(public:event Moved[byval:x:Long y:Single])"},
         {"Event Done(Optional x)", "1:21 1332"},
         {"Implements 5", "1:12 1302"}});
}

TEST(ParseDeclarations, Procedures) {
    expectDeclarations(
        {{"Sub A()\nEnd Sub", "(sub A[] {})"},
         {"Sub A\nEnd Sub", "(sub A[] {})"},
         {"Private Sub A(x, y%)\nEnd Sub", "(private:sub A[x y%] {})"},
         {"Public Function F(ByVal x As Long, ByRef y() As Byte) As String\nEnd Function",
          "(public:function F[byval:x:Long byref:y[]:Byte]:String {})"},
         {"Function F&()\nEnd Function", "(function F&[] {})"},
         {"Function F() As Byte()\nEnd Function", "(function F[]:Byte() {})"},
         {"Static Sub A()\nEnd Sub", "(static:sub A[] {})"},
         {"Private Static Function A()\nEnd Function", "(private:static:function A[] {})"},
         {"Friend Sub A()\nEnd Sub", "(friend:sub A[] {})"},
         {"Function F CDecl(ByVal x As Long) As Long\nEnd Function", "(function F[byval:x:Long]:Long {})"},
         {"Private Sub A CDecl ()\nEnd Sub", "(private:sub A[] {})"},
         {"Property Get P CDecl() As Long\nEnd Property", "(get P[]:Long {})"},
         {"Sub CDecl()\nEnd Sub", "(sub CDecl[] {})"},
         {"Sub A(Optional x As Long = 5, Optional ByVal y = \"a\")\nEnd Sub",
          "(sub A[optional:x:Long=5 optional:byval:y=\"a\"] {})"},
         {"Sub A(x, ParamArray y())\nEnd Sub", "(sub A[x paramarray:y[]] {})"},
         {"Sub A(Optional x, ParamArray y() As Variant)\nEnd Sub", "(sub A[optional:x paramarray:y[]:Variant] {})"},
         {"Public Property Get P() As Long\nEnd Property", "(public:get P[]:Long {})"},
         {"Property Let P(ByVal x As Long)\nEnd Property", "(let P[byval:x:Long] {})"},
         {"Friend Property Set P(Optional i, x As Object)\nEnd Property", "(friend:set P[optional:i x:Object] {})"},
         {"Sub A(x As Lib.Thing, _\n y As Object)\nEnd Sub", "(sub A[x:Lib.Thing y:Object] {})"}});
}

TEST(ParseDeclarations, ProceduresWithErrors) {
    expectDeclarations({{"Sub 5()\nx = 1\nEnd Sub", "1:5 1300"},
                        {"Sub A(ParamArray x(), y)\nEnd Sub", "1:23 1319"},
                        {"Sub A(Optional x, y)\nEnd Sub", "1:19 1320"},
                        {"Sub A(ParamArray x)\nEnd Sub", "1:18 1321"},
                        {"Sub A(ByVal ParamArray x())\nEnd Sub", "1:24 1322"},
                        {"Sub A(x = 5)\nEnd Sub", "1:9 1323"},
                        {"Sub A(x As Any)\nEnd Sub", "1:12 1324"},
                        {"Sub A(x As New Thing)\nEnd Sub", "1:12 1326"},
                        {"Function F%() As Long\nEnd Function", "1:15 1328"},
                        {"Sub A(x\nEnd Sub", "1:8 1801"},
                        {"Property P()\nEnd Property", "1:10 1318"},
                        {"Sub A()\nx = 1\nSub B()\nEnd Sub", "1:1 1315"},
                        {"Sub A()\nIf x Then\nPrivate Sub B()\nEnd Sub", "2:1 1503"},
                        {"Sub A()", "1:1 1315"},
                        {"End Sub", "1:1 1317"},
                        {"x = 1\ny = 2\nz = 3\nDim a\nw = 4", "1:1 1305 5:1 1305"}});
}

TEST(ParseDeclarations, AnotherKindOfEndClosesAProcedureWithAWarning) {
    for (const auto* text : {"Sub A()\nEnd Function\nSub B()\nEnd Sub", "Property Get P()\nEnd Function\nDim a",
                             "Function F()\nEnd Property", "Function F()\nEnd Sub"}) {
        const Parsed parsed{text};
        EXPECT_EQ(parsed.diagnostics(), "2:1 1333") << text;
        EXPECT_EQ(parsed.result.errors, 0u) << text;
    }
    EXPECT_EQ(Parsed("Sub A()\nIf x Then\nEnd Function").diagnostics(), "2:1 1503 3:1 1333");
    EXPECT_EQ(Parsed("Property Get P()\nEnd Function\nDim a").module(), "(get P[] {}) (dim a)");
}

TEST(ParseDeclarations, Attributes) {
    expectDeclarations(
        {{"Attribute VB_Name = \"M\"\nDim a", "(attribute VB_Name \"M\") (dim a)"},
         {"Attribute VB_Ext_KEY = \"a\" ,\"b\"", "(attribute VB_Ext_KEY \"a\" \"b\")"},
         {"Dim a\nAttribute a.VB_VarHelpID = -1", "(dim a) (attribute a.VB_VarHelpID (neg 1))"},
         {"Attribute P.VB_ProcData.VB_Invoke_Property = \";x\"", "(attribute P.VB_ProcData.VB_Invoke_Property \";x\")"},
         {"Attribute VB_Exposed = True", "(attribute VB_Exposed True)"},
         {"Attribute VB_Name", "1:18 1330"}});
}

// ---------------------------------------------------------------- conditional compilation

TEST(ConditionalCompilation, CompilesOneBranch) {
    expectDeclarations(
        {{"#If True Then\nDim a\n#Else\nDim b\n#End If", "(dim a)"},
         {"#If False Then\nDim a\n#Else\nDim b\n#End If", "(dim b)"},
         {"#If 0 Then\nDim a\n#ElseIf 1 Then\nDim b\n#ElseIf 1 Then\nDim c\n#Else\nDim d\n#End If", "(dim b)"},
         {"#If 0 Then\n#If 1 Then\nDim a\n#Else\nDim b\n#End If\n#Else\nDim c\n#End If", "(dim c)"},
         {"#If 1 Then\n#If 0 Then\nDim a\n#End If\nDim b\n#End If", "(dim b)"},
         {"#If False Then\nthis is not VB at all \"\n(((\n#End If\nDim a", "(dim a)"},
         {"  # If 1 Then ' yes\nDim a\n # End If ' done", "(dim a)"},
         {"#If 0 Then\n#Region\n#EndIf\nDim a", "(dim a)"},
         {"Sub A()\nIf x Then\n#If 0 Then\nEnd If\n#Else\ny = 1\nEnd If\n#End If\nEnd Sub",
          "(sub A[] {(if x {(let y 1)})})"}});
}

TEST(ConditionalCompilation, EvaluatesConditions) {
    const auto taken = [](const std::string& condition) {
        const std::string dump =
            declarations("#Const Two = 2\n#Const Word = \"Abc\"\n#If " + condition + " Then\nDim yes\n#End If");
        return dump == "(dim yes)" ? "yes" : dump.empty() ? "no" : dump;
    };
    for (const auto* condition : {"Two = 2",
                                  "Two > 1 And Two < 3",
                                  "Not Two = 3",
                                  "two",
                                  "Two * 2 + 1 = 5",
                                  "7 \\ Two = 3",
                                  "7 Mod Two = 1",
                                  "2 ^ 3 = 8",
                                  "(Two - 2) Or 1",
                                  "Not Undefined",
                                  "Undefined = 0",
                                  "Word = \"aBC\"",
                                  "Word & 1 = \"Abc1\"",
                                  "QUINLOFT = 1",
                                  "Win32",
                                  "VBA6",
                                  "Two Xor 1",
                                  "0 Eqv 0",
                                  "0 Imp 0",
                                  "-Two = -2",
                                  "&HFF = 255",
                                  "Two / 4 = 0.5",
                                  "Undefined = \"\"",
                                  "CLng(\"5\") = 5",
                                  "clng(Two) = 2",
                                  "CInt(2.5) = 2 And CInt(3.5) = 4",
                                  "CByte(255) = &HFF",
                                  "CBool(5) = True",
                                  "CBool(Undefined) = False",
                                  "CCur(1.23456) = 1.2346",
                                  "CSng(0.1) <> 0.1 And CDbl(\"0.1\") = 0.1",
                                  "CDate(\"1/1/2000\") = #1/1/2000#",
                                  "CStr(Two) = \"2\"",
                                  "CVar(Word) = Word",
                                  "CLngPtr(7) = CLngLng(7)",
                                  "Int(-2.5) = -3 And Fix(-2.5) = -2",
                                  "Abs(-3) = 3 And Sgn(-3) = -1",
                                  "Len(Word) = 3 And LenB(Word) = 6",
                                  "Len(Undefined) = 0 And Len(5) = 2 And Len(70000) = 4 And Len(0.5) = 8",
                                  "Not CBool(Len(\"\"))",
                                  "Int(Abs(CDbl(-Two))) = 2",
                                  "Word Like \"A*\""})
        EXPECT_EQ(taken(condition), "yes") << condition;
    for (const auto* condition : {"Two = 3", "Not Two = 2", "Undefined", "Mac", "Win16", "Win64"})
        EXPECT_EQ(taken(condition), "no") << condition;
    for (const auto* condition :
         {"f(1)", "a.b", "1 \\ 0", "1 Mod 0", "1 / 0", "Word", "Word + 1", "1E300 And 1", "CInt(40000)", "CLng(Word)",
          "CLng()", "CLng(1, 2)", "Dir(\"a\")", "Two Is Two", "Sgn(x:=1)", "a.Len(1)", "Word Like \"[\""})
        EXPECT_EQ(taken(condition), "3:5 1203") << condition;
}

TEST(ConditionalCompilation, UsesTheProjectsConstants) {
    const auto constants =
        qltoolkit::parseConditionalConstants("Fast = 1 : Level = -5:bad:7:QUINLOFT=0: Wrong = x:=3:Much=9x");
    ASSERT_EQ(constants.size(), 3u);
    const Parsed parsed{"#If fast And Level = -5 And QUINLOFT = 0 Then\nDim yes\n#End If", "Test.bas", constants};
    EXPECT_EQ(parsed.module(), "(dim yes)");
}

TEST(ConditionalCompilation, Errors) {
    expectDeclarations({{"#If 1 Then\nDim a", "1:1 1201"},
                        {"#If 1 Then", "1:1 1201"},
                        {"#If 0 Then", "1:1 1201"},
                        {"#End If", "1:1 1200"},
                        {"#Else", "1:1 1200"},
                        {"#ElseIf 1 Then", "1:1 1200"},
                        {"#Region x", "1:1 1202"},
                        {"#End Region", "1:1 1202"},
                        {"#If 1\nDim a\n#End If", "1:6 1205"},
                        {"#If Then\nx x x\n#Else\ny y y\n#End If", "1:5 1800"},
                        {"#If 1 Then\n#Else\n#Else\n#End If", "3:1 1204"},
                        {"#If 1 Then\n#Else\n#ElseIf 1 Then\n#End If", "3:1 1204"},
                        {"#Const a\nDim b", "1:9 1312"},
                        {"#Const a = f(1)", "1:12 1203"},
                        {"#If 1 Then x\n#End If", "1:12 1501"}});
}
