// Code that the compiler makes of programs: it passes verification, whatever the program is.
#include "Components/Image/listing/disassemble.h"
#include "Components/Image/verify/verify.h"
#include "tests/qltoolkit/checked_program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace qltoolkit;

namespace {

using test::CheckedProgram;

std::string problemOf(const CompiledProject& compiled) {
    for (const auto& result : compiled.results)
        for (const auto& diagnostic : result.diagnostics)
            if (diagnostic.severity == Severity::Error)
                return std::to_string(diagnostic.number) + ": " + diagnostic.text;
    if (!compiled.code) return "no code";
    const auto problem = image::verify(*compiled.code);
    return problem ? problem->text : "";
}

std::string problemOf(const std::string& module) {
    return problemOf(CheckedProgram{}.add("Module1.bas", module).compiled());
}

std::string repeated(int count, const auto& part) {
    std::string text;
    for (int i = 0; i < count; ++i) text += part(i);
    return text;
}

} // namespace

TEST(GeneratedCode, BeginsAtSubMain) {
    const auto compiled =
        CheckedProgram{}.add("A.bas", "Sub Other()\nEnd Sub").add("B.bas", "Sub MAIN()\nEnd Sub").compiled();
    ASSERT_EQ(problemOf(compiled), "");
    const auto& code = *compiled.code;
    EXPECT_EQ(code.texts[code.procedures[code.start].name], "MAIN");
}

TEST(GeneratedCode, HasNoStartWithoutSubMain) {
    const auto compiled = CheckedProgram{}.add("A.bas", "Function Main()\nEnd Function").compiled();
    ASSERT_EQ(problemOf(compiled), "");
    EXPECT_EQ(compiled.code->start, image::kNone);
}

TEST(GeneratedCode, IsNotMadeOfAFaultyProgram) {
    const auto compiled = CheckedProgram{}.add("A.bas", "Sub Main()\n  Nothing1\nEnd Sub").compiled();
    EXPECT_EQ(compiled.results[0].errors, 1U);
    EXPECT_FALSE(compiled.code);
}

TEST(GeneratedCode, IsTheSameForAnyNumberOfThreads) {
    CheckedProgram program;
    for (int i = 0; i < 20; ++i)
        program.add("Module" + std::to_string(i) + ".bas",
                    "Public v" + std::to_string(i) + " As Long\nSub P" + std::to_string(i) +
                        "()\n  Static n As Long\n  n = n + 1\n  v0 = n\n  Debug.Print \"" + std::to_string(i % 3) +
                        "\"; Left$(\"abc\", 2)\nEnd Sub\n");
    const auto one = program.compiled();
    ASSERT_EQ(problemOf(one), "");
    for (const unsigned threads : {2U, 8U}) {
        program.options.threads = threads;
        EXPECT_EQ(program.compiled().code, one.code) << threads;
    }
}

TEST(GeneratedCode, ReachesMoreVariablesThanInstructionsCanName) {
    const auto variable = [](int i) {
        return "  Dim v" + std::to_string(i) + " As Long, s" + std::to_string(i) + " As String\n";
    };
    const auto use = [](int i) {
        return "  v" + std::to_string(i) + " = v" + std::to_string(i) + " + 1: s" + std::to_string(i) + " = s" +
               std::to_string(i) + " & v0\n";
    };
    EXPECT_EQ(problemOf("Sub Main()\n" + repeated(400, variable) + repeated(400, use) + "End Sub"), "");
}

TEST(GeneratedCode, RefusesAProcedureWithTooManyVariables) {
    const auto variable = [](int i) { return "  Dim v" + std::to_string(i) + "\n"; };
    EXPECT_THAT(problemOf("Sub Main()\n" + repeated(5000, variable) + "End Sub"),
                testing::StartsWith("2700: Procedure too large: Main"));
}

TEST(GeneratedCode, ComputesLongChainsOfOperators) {
    const auto text = [](int) { return std::string(" & \"x\""); };
    const auto sum = [](int i) { return " + n * " + std::to_string(i); };
    EXPECT_EQ(problemOf("Sub Main()\n  Dim s As String, n As Double, v\n  s = s" + repeated(3000, text) + "\n  n = n" +
                        repeated(3000, sum) + "\n  v = v" + repeated(100, text) + "\nEnd Sub"),
              "");
}

TEST(GeneratedCode, RefusesAnExpressionThatNestsTooDeep) {
    const auto open = [](int) { return std::string("Abs("); };
    const auto close = [](int) { return std::string(")"); };
    const auto problem =
        problemOf("Sub Main()\n  Dim v\n  v = " + repeated(150, open) + "v" + repeated(150, close) + "\nEnd Sub");
    EXPECT_THAT(problem, testing::AnyOf("", testing::StartsWith("2700")));
}

// One program with every kind of statement and many kinds of expressions.
TEST(GeneratedCode, OfEveryStatementPassesVerification) {
    CheckedProgram program;
    program.add("Module1.bas", R"(
Option Base 1
Private Type Inner
  A(3) As Integer
  S As String * 4
End Type
Private Type Outer
  I As Inner
  List() As Double
  O As Object
  V As Variant
End Type
Private all(2, 2) As Outer, one As Outer, open1() As Outer, names(3) As String * 8
Private c As Class1, cc As New Collection
Declare Sub Sleep Lib "kernel32" (ByVal ms As Long)
Sub ByRefs(n As Integer, s As String, v, o As Outer, a() As Double, Optional x As Double = 2.5, Optional m)
  n = n + 1: s = s & n: v = v & s: o = one: a(1) = x
  If IsMissing(m) Then Exit Sub
End Sub
Function Many(ParamArray p()) As Outer
  Many.V = p(0)
End Function
Function Names1() As String()
  Dim r() As String
  ReDim r(2 To 3)
  Names1 = r
End Function
Sub Main()
  Dim i As Integer, l As Long, b As Byte, f As Boolean, g As Single, d As Double, m As Currency, t As Date, s As String, v
  Dim fixed As String * 10, bytes() As Byte, o As Object, q As Outer, e As New Class1
  Static calls As Long, kept(5) As String
  On Error GoTo handler
  calls = calls + 1: kept(2) = s
  For i = 1 To 10 Step 2: l = l + i: Next i
  For b = 5 To 1 Step -1: Next
  For g = 0 To 1 Step 0.25: Next
  For v = 1 To 3: Next
  For m = 1 To l Step d: Next
  For Each v In cc: Exit For: Next
  For Each v In kept: Next
  For Each o In cc: Next
  Do While i < 3: i = i + 1: Loop
  Do: Exit Do: Loop Until f
  While l > 0: l = l \ 2: Wend
  Select Case s
  Case "a", "b" To "c": s = ""
  Case Is > fixed
  Case Else: s = "x"
  End Select
  Select Case v
  Case 1, "2", Is >= d
  End Select
  If f Then s = "y" Else s = "z"
  With one.I
    .A(1) = 3: .S = "abcdef"
    With e: .Value = 4: .Item(2) = .Value: End With
  End With
  all(1, 2).I.A(2) = all(2, 1).I.A(1)
  all(1, 1) = one: open1 = open1
  ReDim open1(3): ReDim Preserve open1(5): ReDim one.List(4): ReDim v(2, 3) As Long
  v(1, 2) = 5: v(1, 2) = v(2, 1) + 1
  ByRefs i, s, v, all(1, 2), one.List
  ByRefs kept(1) + 1, fixed, l, q, q.List, m:=v, x:=d
  ByRefs l + 0, (s), names(2), open1(1), one.List, , Missing
  q = Many(1, s, o)
  d = (l Xor 3) / 7 + g ^ 2 - m * 2 Mod 5: m = m * 2 - 1: t = t + 1.5: t = #1/2/2003#
  f = Not f And (s Like "a*") Or i <> b Imp l = d Eqv f
  b = b Or 255: b = Not b: i = -i: d = -d: m = -m: l = &H7FFFFFFF
  v = Null: v = Empty: v = -v: v = v + 1 & s
  Set o = Nothing: Set o = e: Set e = New Class1: Set c = o: Set v = c
  If o Is c Or TypeOf o Is Class1 Or Not v Is Nothing Then o.Value = 5
  v = o.Item(1): o!Key = v: v = c: c = 7: Let v = e(2)
  e.Raise1 l
  Call ByRefs(i, s, v, q, one.List)
  LSet fixed = s: RSet fixed = s: LSet q = one
  Mid$(s, 2, 3) = "abc": Mid(fixed, 1) = s: Mid(v, 2) = "x"
  bytes = s: s = bytes: bytes = StrConv(s, vbFromUnicode)
  Open "f" For Binary Access Read Write Lock Read As #1 Len = 10
  Get #1, , l: Put #1, 3, s: Get #1, , bytes: Put 1, , v
  Print #1, s; Tab(3); Spc(2), l: Write #1, s, f: Input #1, s, l, v: Line Input #1, s
  Seek #1, 5: Lock #1, 1 To 3: Unlock #1, 1 To 3: Width #1, 80: Close #1: Close: Name "a" As "b"
  Debug.Print Tab; s, l; f
  Debug.Assert l = 0
  Erase names, open1, v
  On i GoTo first, second
  On i GoSub first
  GoSub first
first:
10 l = Erl
  Return
second:
  Sleep 5
  l = LBound(names) + UBound(all, 2) + Len(s) + Len(q.I) + Len(v) + Sqr(d) + Abs(i) + Int(d) + Fix(g)
  v = Array(1, "a", o): v = IIf(f, 1, s): v = Choose(1, l)
  Stop
  Error 5
  Resume
  Resume Next
  Exit Sub
handler:
  On Error Resume Next
  On Error GoTo 0
  Err.Raise 5, , "text"
  Resume second
  End
End Sub
)");
    program.add("Class1.cls", R"(
Public Event Changed(ByVal n As Long, Cancel As Boolean)
Public Value As Long, Other As Object
Private list(4) As String, WithEvents source As Class1
Private Sub Class_Initialize()
  list(1) = "a": Me.Value = 1
End Sub
Private Sub Class_Terminate()
  Set source = Nothing
End Sub
Public Property Get Item(ByVal i As Variant) As Variant
Attribute Item.VB_UserMemId = 0
  Item = list(i)
End Property
Public Property Let Item(ByVal i As Variant, ByVal v As Variant)
  list(i) = v
End Property
Public Property Set Partner(p As Class1)
  Set source = p
End Property
Public Sub Raise1(ByVal n As Long)
  Dim cancel As Boolean
  Static n2 As Long, fixed(3) As Long
  n2 = n2 + fixed(1)
  RaiseEvent Changed(n, cancel)
  Set Partner = Me
End Sub
Private Sub source_Changed(ByVal n As Long, Cancel As Boolean)
  Cancel = n > 3
End Sub
)");
    EXPECT_EQ(problemOf(program.compiled()), "");
}

TEST(GeneratedCode, OfAnArrayOfControlsFromAnAbsentLibraryPassesVerification) {
    CheckedProgram program;
    program.options.isIncomplete = true;
    program.controls = "   Begin Absent.Shape Shape1 \n      Index = 0\n   End\n";
    program.add("Form1.frm", "Sub Grow()\n  Shape1(0).Speed = Shape1(0).Speed + 1\nEnd Sub\n");
    EXPECT_EQ(problemOf(program.compiled()), "");
}

namespace {

/// The instructions of the first procedure.
std::string listed(const std::string& procedure) {
    const auto compiled = CheckedProgram{}.add("Module1.bas", procedure).compiled();
    EXPECT_EQ(problemOf(compiled), "");
    return compiled.code ? image::disassemble(*compiled.code, 0) : "";
}

} // namespace

using testing::HasSubstr;
using testing::Not;

TEST(GeneratedCode, HasNumbersInTheInstructionsOfOperators) {
    const auto fraction = [](const std::string& expression) {
        return listed("Sub A(ByVal d As Double, ByVal n As Integer)\nd = " + expression + "\nEnd Sub");
    };
    EXPECT_THAT(fraction("d * 2"), HasSubstr("MultiplyFloatK"));
    EXPECT_THAT(fraction("2 * d"), HasSubstr("MultiplyFloatK          s0, s0, 2"));
    EXPECT_THAT(fraction("-0.5 + d"), HasSubstr("AddFloatK               s0, s0, -0.5"));
    EXPECT_THAT(fraction("2.5 * n"), HasSubstr("MultiplyFloatK"));
    EXPECT_THAT(fraction("2 - d"), Not(HasSubstr("FloatK")));
    EXPECT_THAT(listed("Sub A(ByVal n As Long)\nn = 3 * n\nEnd Sub"), HasSubstr("MultiplyLongK           s0, s0, 3"));
    EXPECT_THAT(listed("Sub A(ByVal n As Long)\nn = 3000 * n\nEnd Sub"), Not(HasSubstr("MultiplyLongK")));
    EXPECT_THAT(listed("Sub A(ByVal c As Currency)\nc = 3 * c\nEnd Sub"), Not(HasSubstr("K ")));
}

TEST(GeneratedCode, ReturnsWhereItWouldJumpToTheEnd) {
    const std::string branches = "Sub A(ByVal n As Long)\nIf n < 2 Then\nn = 1\nElse\nn = 2\nEnd If\n";
    EXPECT_THAT(listed(branches + "End Sub"), Not(HasSubstr("Jump  ")));
    EXPECT_THAT(listed(branches + "n = 3\nEnd Sub"), HasSubstr("Jump  "));
    EXPECT_THAT(listed("Sub A()\nDo\nLoop\nEnd Sub"), HasSubstr("Jump  "));
}

TEST(GeneratedCode, HasNumbersInTheJumpsOfComparisons) {
    const auto condition = [](const std::string& expression) {
        return listed("Sub A(ByVal d As Double)\nIf " + expression + " Then d = 1\nEnd Sub");
    };
    EXPECT_THAT(condition("d > 4"), HasSubstr("JumpLessEqualFloatK     s0, 4, "));
    EXPECT_THAT(condition("d >= 4"), HasSubstr("JumpLessFloatK          s0, 4, "));
    EXPECT_THAT(condition("d < -4.5"), HasSubstr("JumpGreaterEqualFloatK  s0, -4.5, "));
    EXPECT_THAT(condition("d <= 4"), HasSubstr("JumpGreaterFloatK       s0, 4, "));
    EXPECT_THAT(condition("d = 4"), HasSubstr("JumpNotEqualFloat "));
}
