#include "tests/qltoolkit/ast_dump.h"
#include <gtest/gtest.h>

using qltoolkit::dump::Pair;
using qltoolkit::dump::Parsed;
using qltoolkit::dump::statements;

namespace {

void expectStatements(std::initializer_list<Pair> pairs) {
    for (const auto& [source, dump] : pairs) EXPECT_EQ(statements(source), dump) << source;
}

} // namespace

TEST(ParseStatements, Assignments) {
    expectStatements({{"x = 5", "(let x 5)"},
                      {"Let x = 5", "(Let x 5)"},
                      {"x = y = z", "(let x (= y z))"},
                      {"a(1).b = 2", "(let (. (call a 1) b) 2)"},
                      {"a (1) = 2", "(let (call a 1) 2)"},
                      {"rs!Name = \"x\"", "(let (! rs Name) \"x\")"},
                      {"Me.Caption = \"x\"", "(let (. Me Caption) \"x\")"},
                      {"Set x = New Collection", "(set x (new Collection))"},
                      {"Set a.b = Nothing", "(set (. a b) Nothing)"},
                      {"LSet a = b", "(lset a b)"},
                      {"RSet a.b = c", "(rset (. a b) c)"},
                      {"Date = x", "(let Date x)"},
                      {"Text = Name", "(let Text Name)"},
                      {"Name = \"x\"", "(let Name \"x\")"},
                      {"Line = 3", "(let Line 3)"},
                      {"x% = 5", "(let x% 5)"},
                      {"Me = 5", "2:1 1536"},
                      {"x =", "2:4 1800"}});
}

TEST(ParseStatements, TheMidStatement) {
    expectStatements({{"Mid(s, 2) = \"x\"", "(mid s 2 _ \"x\")"},
                      {"Mid$(s, 2, 3) = y", "(mid s 2 3 y)"},
                      {"MidB(a.b, 1, 1) = z", "(midb (. a b) 1 1 z)"},
                      {"MidB$(s, 1) = z", "(midb s 1 _ z)"},
                      {"a.Mid(1) = 2", "(let (call (. a Mid) 1) 2)"},
                      {"Mid(s) = \"x\"", "2:1 1537"}});
}

TEST(ParseStatements, CallsInBothForms) {
    expectStatements({{"f", "(do f)"},
                      {"f 1, 2", "(do (call f 1 2))"},
                      {"f (x)", "(do (call f (paren x)))"},
                      {"f (x), y", "(do (call f (paren x) y))"},
                      {"f (a) & b, c", "(do (call f (& (paren a) b) c))"},
                      {"f (a) - 1", "(do (call f (- (paren a) 1)))"},
                      {"f -1", "(do (call f (neg 1)))"},
                      {"f , 1", "(do (call f _ 1))"},
                      {"f 1, , 3", "(do (call f 1 _ 3))"},
                      {"f a:=1, b:=2", "(do (call f a:=1 b:=2))"},
                      {"f ByVal x, ByVal 0&", "(do (call f (byval x) (byval 0&)))"},
                      {"f AddressOf g", "(do (call f (addressof g)))"},
                      {"f Not a", "(do (call f (not a)))"},
                      {"f #1/1/2000#", "(do (call f #36526#))"},
                      {"f(x)", "(do (call f (paren x)))"},
                      {"f()", "(do (call f))"},
                      {"a.b.c 1", "(do (call (. (. a b) c) 1))"},
                      {"a(1).b 2", "(do (call (. (call a 1) b) 2))"},
                      {"a(1).b (2), 3", "(do (call (. (call a 1) b) (paren 2) 3))"},
                      {"a!b.c 1", "(do (call (. (! a b) c) 1))"},
                      {"Call f", "(Do f)"},
                      {"Call f(1, 2)", "(Do (call f 1 2))"},
                      {"Call a.b(1).c", "(Do (. (call (. a b) 1) c))"},
                      {"Load frmMain", "(do (call Load frmMain))"},
                      {"Unload Me", "(do (call Unload Me))"},
                      {"Kill \"x\"", "(do (call Kill \"x\"))"},
                      {"Error 5", "(do (call Error 5))"},
                      {"Reset", "(do Reset)"},
                      {"a.Close", "(do (. a Close))"},
                      {"a.Open 1", "(do (call (. a Open) 1))"},
                      {"Me.Refresh", "(do (. Me Refresh))"},
                      {"Call 5", "2:6 1300"},
                      {"Call Me", "2:6 1539"},
                      {"f(1, 2)", "2:1 1535"},
                      {"f a:=1, 2", "2:9 1805"},
                      {"f 1 2", "2:5 1501"}});
}

TEST(ParseStatements, ABlankBeforeAPointBeginsAnArgument) {
    expectStatements({{"With a\nf .b\nEnd With", "(with a {(do (call f (. b)))})"},
                      {"With a\nf !b, .c\nEnd With", "(with a {(do (call f (! b) (. c)))})"},
                      {"With a\nf.b\nEnd With", "(with a {(do (. f b))})"},
                      {"With a\n.b .c, 1\nEnd With", "(with a {(do (call (. b) (. c) 1))})"},
                      {"With a\n.b\nEnd With", "(with a {(do (. b))})"}});
}

TEST(ParseStatements, Print) {
    expectStatements(
        {{"Debug.Print", "(print (. Debug Print))"},
         {"Debug.Print a; b, c;", "(print (. Debug Print) a; b, c;)"},
         {"Debug.Print ; , a", "(print (. Debug Print) ; , a)"},
         {"Debug.Print (a); (b)", "(print (. Debug Print) (paren a); (paren b))"},
         {"Debug.Print \"x\" & (1)", "(print (. Debug Print) (& \"x\" (paren 1)))"},
         {"Debug.Print Spc(3); Tab(5); Tab; x", "(print (. Debug Print) (call Spc 3); (call Tab 5); Tab; x)"},
         {"Debug.Print Tab(5) x", "(print (. Debug Print) (call Tab 5); x)"},
         {"Print a; b", "(print Print a; b)"},
         {"Me.Print a", "(print (. Me Print) a)"},
         {"pic.Print \"x\",", "(print (. pic Print) \"x\",)"},
         {"With pic\n.Print a\nEnd With", "(with pic {(print (. Print) a)})"},
         {"Debug.Assert x > 1", "(do (call (. Debug Assert) (> x 1)))"}});
}

TEST(ParseStatements, MethodsThatDraw) {
    expectStatements({{"Line (1, 2)-(3, 4)", "(do (call Line (at 1,2 to 3,4)))"},
                      {"Line (1, 2)-(3, 4), vbRed, BF", "(do (call Line (at 1,2 to 3,4) vbRed BF))"},
                      {"Line -(3, 4), , B", "(do (call Line (at to 3,4) _ B))"},
                      {"Line Step(1, 2)-Step(3, 4)", "(do (call Line (at step 1,2 to step 3,4)))"},
                      {"pic.Line (a + 1, b)-(c, d)", "(do (call (. pic Line) (at (+ a 1),b to c,d)))"},
                      {"pic.PSet (1, 2), c", "(do (call (. pic PSet) (at 1,2) c))"},
                      {"PSet (1, 2)", "(do (call PSet (at 1,2)))"},
                      {"PSet Step(1, 2)", "(do (call PSet (at step 1,2)))"},
                      {"Circle (x, y), r, , 0, 3.14", "(do (call Circle (at x,y) r _ 0 3.14#))"},
                      {"Scale (0, 0)-(1, 1)", "(do (call Scale (at 0,0 to 1,1)))"},
                      {"Scale", "(do Scale)"},
                      {"With pic\n.Line (1, 2)-(3, 4)\nEnd With", "(with pic {(do (call (. Line) (at 1,2 to 3,4)))})"},
                      {"a.Line(3) = 5", "(let (call (. a Line) 3) 5)"},
                      {"Line (1, 2)-5", "2:13 1806"},
                      {"Line (1, 2)-(3 4)", "2:16 1533"}});
}

TEST(ParseStatements, Variables) {
    expectStatements({{"Dim x", "(dim x)"},
                      {"Dim x As Long, y%, z", "(dim x:Long y% z)"},
                      {"Dim a(5), b(1 To 3, 0 To n) As Byte, c()", "(dim a[5] b[1..3 0..n]:Byte c[])"},
                      {"Dim s As String * 10, t As String * kLen", "(dim s:String*10 t:String*kLen)"},
                      {"Dim c As New Collection, d As New Lib.Thing", "(dim c:new:Collection d:new:Lib.Thing)"},
                      {"Dim o As Object, v As Variant, t As Lib.Thing", "(dim o:Object v:Variant t:Lib.Thing)"},
                      {"Static n As Integer", "(static n:Integer)"},
                      {"Const a = 1, b As Long = 2, c$ = \"x\"", "(const a=1 b:Long=2 c$=\"x\")"},
                      {"Dim x As", "2:9 1302"},
                      {"Dim 5", "2:5 1300"},
                      {"Dim Next As Long", "2:5 1301"},
                      {"Dim Long As Long", "2:5 1301"},
                      {"Dim x As Any", "2:10 1324"},
                      {"Dim x As New Long", "2:14 1326"},
                      {"Dim x As Long * 5", "2:15 1327"},
                      {"Dim x% As Long", "2:8 1328"},
                      {"Const a", "2:8 1312"},
                      {"Dim a(5", "2:8 1801"},
                      {"Private x As Long", "2:1 1306"},
                      {"Option Explicit", "2:1 1306"}});
}

TEST(ParseStatements, ReDimAndErase) {
    expectStatements({{"ReDim a(5)", "(redim a[5])"},
                      {"ReDim Preserve a(1 To n, 3) As Long, b(2)", "(redim-preserve a[1..n 3]:Long b[2])"},
                      {"ReDim a.b(1).c(5)", "(redim (. (call (. a b) 1) c)[5])"},
                      {"With t\nReDim .x(f(1) To 2)\nEnd With", "(with t {(redim (. x)[(call f 1)..2])})"},
                      {"ReDim a(3) As New Thing", "(redim a[3]:new:Thing)"},
                      {"Erase a, b.c", "(erase a (. b c))"},
                      {"ReDim a", "2:7 1534"},
                      {"ReDim a()", "2:7 1534"},
                      {"x = f(1 To 2)", "2:9 1801"}});
}

TEST(ParseStatements, Jumps) {
    expectStatements(
        {{"GoTo done\ndone:", "(goto done) (label done)"},
         {"GoTo 10\n10 x = 1", "(goto 10) (line 10) (let x 1)"},
         {"10: x = 1", "(line 10) (let x 1)"},
         {"70000 Beep", "(line 70000) (do Beep)"},
         {"Error: x = 1", "(label Error) (let x 1)"},
         {"a: b: c", "(label a) (do b) (do c)"},
         {"Select Case x\nCase 1: f: g\nEnd Select: h: i", "(select x (case 1 {(do f) (do g)})) (do h) (do i)"},
         {"If x Then\nElse: f: g\nh:\nEnd If\nk:", "(if x {} else {(do f) (do g) (label h)}) (label k)"},
         {"DoEvents: x = 1", "(do DoEvents) (let x 1)"},
         {"GoSub s\nExit Sub\ns: Return", "(gosub s) (exit-sub) (label s) (return)"},
         {"On x GoTo a, 20, c", "(on-goto x a 20 c)"},
         {"On f(x) + 1 GoSub a", "(on-gosub (+ (call f x) 1) a)"},
         {"On Error GoTo oops", "(on-error oops)"},
         {"On Error GoTo 10", "(on-error 10)"},
         {"On Error GoTo 0", "(on-error-off)"},
         {"On Error GoTo -1", "(on-error-clear)"},
         {"On Error Resume Next", "(on-error-next)"},
         {"On Local Error GoTo oops", "(on-error oops)"},
         {"Resume", "(resume 0)"},
         {"Resume Next", "(resume-next)"},
         {"Resume again", "(resume again)"},
         {"Exit Function: Exit Property: Exit Do: Exit For", "(exit-function) (exit-property) (exit-do) (exit-for)"},
         {"End: Stop", "(end) (stop)"},
         {"RaiseEvent Done", "(raise Done)"},
         {"RaiseEvent Done(1, x)", "(raise Done 1 x)"},
         {"GoTo \"x\"", "2:6 1525"},
         {"On x", "2:5 1526"},
         {"Exit While", "2:6 1527"},
         {"On Error Resume", "2:16 1525"},
         {"On Error GoTo -2", "2:16 1525"}});
}

TEST(ParseStatements, Files) {
    expectStatements(
        {{"Open f For Input As #1", "(open f input 1)"},
         {"Open f As n", "(open f random n)"},
         {"Open f & \".txt\" For Output As #n Len = 128", "(open (& f \".txt\") output n 128)"},
         {"Open f For Append Access Write Lock Read As 1", "(open f append write lock-read 1)"},
         {"Open f For Binary Access Read Write Lock Read Write As #1", "(open f binary readwrite lock-readwrite 1)"},
         {"Open f For Random Access Read Shared As #1 Len = Len(r)", "(open f random read shared 1 (call Len r))"},
         {"Open f For Input Lock Write As #1", "(open f input lock-write 1)"},
         {"Close", "(close)"},
         {"Close #1, n, #3", "(close 1 n 3)"},
         {"Close#1", "(close 1)"},
         {"Get #1, , x", "(get 1 _ x)"},
         {"Get n, 5, a(1)", "(get n 5 (call a 1))"},
         {"Put #1, i + 1, x.y", "(put 1 (+ i 1) (. x y))"},
         {"Seek #1, 5", "(seek 1 5)"},
         {"Lock #1", "(lock 1 _ _)"},
         {"Lock #1, 5", "(lock 1 5 _)"},
         {"Unlock #1, 1 To 10", "(unlock 1 1 10)"},
         {"Input #1, a, b.c", "(input# 1 a (. b c))"},
         {"Line Input #1, s", "(line-input# 1 s)"},
         {"Line Input #f, a(i)", "(line-input# f (call a i))"},
         {"Print #1, a; b,", "(print# 1 a; b,)"},
         {"Print #1,", "(print# 1)"},
         {"Print #1", "(print# 1)"},
         {"Print#1, Tab(3); #1/1/2000#", "(print# 1 (call Tab 3); #36526#)"},
         {"Write #1, a, \"b\"", "(write# 1 a, \"b\")"},
         {"Width #1, 80", "(width# 1 80)"},
         {"Width = 5", "(let Width 5)"},
         {"Name a As b & \"x\"", "(name a (& b \"x\"))"},
         {"Name (a) As b", "(name (paren a) b)"},
         {"Name a As f(b, c, d, e, g)", "(name a (call f b c d e g))"},
         {"Open f For Reading As #1", "2:12 1531"},
         {"Open f For Input", "2:17 1303"},
         {"Open f For Input Access As #1", "2:25 1530"},
         {"Close #", "2:8 1532"},
         {"Line Input #1 s", "2:15 1533"},
         {"Get #1", "2:7 1533"},
         {"Write 1, 2", "2:7 1532"}});
}

TEST(ParseStatements, CommentsAndColons) {
    expectStatements({{"x = 1 ' why", "(let x 1)"},
                      {"Rem nothing: x = 1", ""},
                      {"x = 1: Rem y = 2", "(let x 1)"},
                      {": x = 1 :: y = 2:", "(let x 1) (let y 2)"},
                      {"' goes on _\nx = 1", ""},
                      {"Rem goes on _\nx = 1\ny = 2", "(let y 2)"},
                      {"x = 1 ' goes on _\n on and on _\ny = 2\nz = 3", "(let x 1) (let z 3)"},
                      {"' no blank_\nx = 1", "(let x 1)"},
                      {"x = _\n 1 + _\n 2", "(let x (+ 1 2))"},
                      {"x = 1 + _ \t\n 2", "(let x (+ 1 2))"},
                      {"f a, _\n\ny = 1", "(do (call f a _)) (let y 1)"}});
}

TEST(ParseStatements, AttributesInsideCodeAreHidden) {
    const Parsed parsed{"Public Sub A()\nAttribute A.VB_Description = \"x\"\nx = 1\nEnd Sub\n"};
    EXPECT_EQ(parsed.diagnostics(), "");
    EXPECT_EQ(parsed.module(), "(public:sub A[] {(let x 1)}) (attribute A.VB_Description \"x\")");
    EXPECT_EQ(parsed.result.module->codeLine(1), 1u);
    EXPECT_EQ(parsed.result.module->codeLine(2), 0u);
    EXPECT_EQ(parsed.result.module->codeLine(3), 2u);
}
