// Completion, parameter help and quick info.
#include "Components/Language/foreign.h"
#include "Components/QLToolkit/insight/library_names.h"
#include "Components/QLToolkit/insight/line_check.h"
#include "tests/qltoolkit/insight_program.h"
#include <gtest/gtest.h>

namespace {

using qltoolkit::OfferKind;
using qltoolkit::Wanted;
using test::InsightProgram;

const char* const kInsightModule =
    "Public Total As Long\n"
    "Private Enum Fruit\n  Apple\n  Pear\nEnd Enum\n"
    "Private Type Point\n  X As Long\n  Y As Long\nEnd Type\n"
    "Private Favourite As Fruit\n"
    "Function Sum(ByVal First As Long, Optional Second As Long = 2) As Long\nEnd Function\n"
    "Sub Report(Text As String, ParamArray Rest())\nEnd Sub\n"
    "Function Where() As Point\nEnd Function\n"
    "Sub Pick(Kind As Fruit, Count As Long)\nEnd Sub\n";

const char* const kInsightClass = "Public Age As Integer\n"
                                  "Event Grown(By As Integer)\n"
                                  "Private hidden As Long\n"
                                  "Property Get Name() As String\nEnd Property\n"
                                  "Property Let Name(Value As String)\nEnd Property\n"
                                  "Function Child(Index As Long) As Person\nEnd Function\n"
                                  "Sub Grow()\nEnd Sub\n";

struct Completion : testing::Test {
    InsightProgram program;
    Completion() {
        program.controls = "   Begin VB.TextBox txtName \n   End\n"
                           "   Begin VB.CommandButton cmdGo \n      Index = 0\n   End\n";
        program.add("Module1.bas", kInsightModule)
            .add("Person.cls", kInsightClass)
            .add("Form1.frm", "Public Extra As Long\n");
    }
    static std::string in(const std::string& body) { return "Sub Main()\n" + body; }
};

TEST_F(Completion, OffersTheMembersOfAnObject) {
    EXPECT_EQ(program.names(in("  Dim p As Person\n  p.|\nEnd Sub\n")), "Age Child Grow Name");
    EXPECT_EQ(program.names(in("  Dim p As New Person\n  x = p.Child(1).N|")), "Age Child Grow Name");
    EXPECT_EQ(program.offer(in("  Dim p As New Person\n  x = p.Child(1).N|")).partial, "N");
}

TEST_F(Completion, OffersTheMembersOfRecordsModulesAndEnumerations) {
    EXPECT_EQ(program.names(in("  Where().|")), "X Y");
    EXPECT_EQ(program.names(in("  x = Fruit.|")), "Apple Pear");
    EXPECT_EQ(program.names(in("  Module1.|")), "Apple Favourite Fruit Pear Pick Report Sum Total Where");
    EXPECT_TRUE(program.offers(in("  Project1.|"), "Form1"));
    EXPECT_TRUE(program.offers(in("  VBA.|"), "MsgBox"));
}

TEST_F(Completion, OffersTheMembersOfFormsAndControls) {
    EXPECT_TRUE(program.offers(in("  Form1.|"), "txtName"));
    EXPECT_TRUE(program.offers(in("  Form1.|"), "Extra"));
    EXPECT_TRUE(program.offers(in("  Form1.|"), "Caption"));
    EXPECT_TRUE(program.offers(in("  Form1.txtName.|"), "SelStart"));
    EXPECT_EQ(program.names(in("  Form1.cmdGo.|")), "Count Item LBound UBound");
    EXPECT_TRUE(program.offers(in("  Form1.cmdGo(0).|"), "Caption"));
    EXPECT_EQ(program.names(in("  Form1!|")), "cmdGo txtName");
}

TEST_F(Completion, KnowsTheObjectOfWith) {
    EXPECT_EQ(program.names(in("  Dim p As Person\n  With p\n    .|\n  End With\nEnd Sub\n")), "Age Child Grow Name");
    EXPECT_EQ(program.names(in("  Dim p As Person\n  With p\n    With .Child(2)\n    x = 1 + .|")),
              "Age Child Grow Name");
    EXPECT_EQ(program.names(in("  Dim p As Person\n  With p\n    Report .|")), "Age Child Grow Name");
    EXPECT_EQ(program.names(in("  Dim p As Person\n  With p\n  End With\n  .|")), "");
}

TEST_F(Completion, OffersNamesInScope) {
    const auto body = in("  Dim Zebra As Long\n  Static Lion\n  Const Cat = 1\n  x = |\n  Dim later\nEnd Sub\n");
    for (const auto* name : {"Zebra", "Lion", "Cat", "Total", "Sum", "Apple", "Form1", "MsgBox", "vbOKOnly", "True"})
        EXPECT_TRUE(program.offers(body, name)) << name;
    EXPECT_FALSE(program.offers(body, "later"));
    EXPECT_FALSE(program.offers(body, "Person"));
    EXPECT_FALSE(program.offers(body, "While"));
    EXPECT_TRUE(program.offers("Function F(Given)\n  |", "Given"));
    EXPECT_TRUE(program.offers("Function Fresh(Given)\n  |", "Fresh"));
}

TEST_F(Completion, OffersStatementsWhereOneBegins) {
    for (const auto* text : {"  |", "  x = 1: |", "  If x Then |", "  If x Then y = 1 Else |"})
        EXPECT_TRUE(program.offers(in(text), "While")) << text;
    EXPECT_TRUE(program.offers("|", "Private"));
    EXPECT_FALSE(program.offers("|", "While"));
}

TEST_F(Completion, OffersEveryWordThatBeginsAStatement) {
    for (const auto* word :
         {"Call",       "Case",   "Close",  "Const",  "Dim",   "Do",    "Else",       "ElseIf",     "End",
          "Erase",      "Exit",   "For",    "Get",    "GoSub", "GoTo",  "If",         "Input",      "Let",
          "Lock",       "Loop",   "LSet",   "Name",   "Next",  "Open",  "On Error",   "Print",      "Put",
          "RaiseEvent", "ReDim",  "Resume", "Return", "RSet",  "Seek",  "Static",     "Set",        "Stop",
          "Wend",       "Unlock", "Width",  "While",  "With",  "Write", "Line Input", "Select Case"})
        EXPECT_TRUE(program.offers(in("  |"), word)) << word;
    for (const auto* word :
         {"Const", "Declare", "Dim", "Enum", "Event", "Friend", "Function", "Implements", "Option Base",
          "Option Compare", "Option Explicit", "Private", "Property", "Public", "Sub", "Type", "WithEvents"})
        EXPECT_TRUE(program.offers("|", word)) << word;
    for (const auto* word : {"AddressOf", "And", "Empty", "False", "Is", "Like", "Mod", "New", "Not", "Nothing", "Null",
                             "Or", "True", "TypeOf", "Xor"})
        EXPECT_TRUE(program.offers(in("  x = |"), word)) << word;
    EXPECT_FALSE(program.offers(in("  x = |"), "Me"));
}

TEST_F(Completion, OffersTypesAfterAs) {
    for (const auto* text : {"  Dim x As |", "  Static a As Long, b As |"}) {
        for (const auto* name : {"Long", "Person", "Fruit", "Point", "Collection", "VBA", "Form1"})
            EXPECT_TRUE(program.offers(in(text), name)) << text << name;
        EXPECT_FALSE(program.offers(in(text), "MsgBox"));
    }
    EXPECT_TRUE(program.offers(in("  Dim x As New |"), "Person"));
    EXPECT_FALSE(program.offers(in("  Dim x As New |"), "Fruit"));
    EXPECT_TRUE(program.offers(in("  Dim x As VBA.|"), "Collection"));
    EXPECT_TRUE(program.offers("Private p As |", "Person"));
    EXPECT_TRUE(program.offers("Sub f(p As |", "Person"));
}

TEST_F(Completion, OffersLabelsAfterJumps) {
    EXPECT_EQ(program.names(in("  GoTo |\nAgain:\n  x = 1\nDone:\nEnd Sub\n")), "Again Done");
    EXPECT_EQ(program.names(in("Again:\n  On Error GoTo A|")), "Again");
}

TEST_F(Completion, OffersTheValuesOfAnEnumeration) {
    EXPECT_EQ(program.names(in("  Favourite = |"), Wanted::Special), "Apple Pear");
    EXPECT_EQ(program.names(in("  If Favourite = |"), Wanted::Special), "Apple Pear");
    EXPECT_EQ(program.names(in("  Pick |"), Wanted::Special), "Apple Pear");
    EXPECT_EQ(program.offer(in("  Total = |"), Wanted::Special).kind, OfferKind::Names);
    EXPECT_EQ(program.offer(in("  Pick Apple, |"), Wanted::Special).kind, OfferKind::Names);
}

TEST_F(Completion, OffersNothingInTextsAndForNewNames) {
    for (const auto* text : {"  x = \"p.|", "  ' p.|", "  Rem x |", "  x = 12|", "  x = &HFF|", "  x = &h1f|",
                             "  x = 1.5|", "  Dim |", "  Dim a, |", "  Const c|"})
        EXPECT_EQ(program.offer(in(text)).kind, OfferKind::Nothing) << text;
}

TEST_F(Completion, SpellsNamesAsTheyAreDeclared) {
    InsightProgram other;
    other.add("Module1.bas", "Sub Main()\n  MYNAME = 1: msgbox 1\nEnd Sub\nPublic MyName As Long\n");
    EXPECT_TRUE(other.offers(in("  |"), "MyName"));
    EXPECT_TRUE(other.offers(in("  |"), "MsgBox"));
    InsightProgram modules;
    modules.add("Module1.bas", "Sub Main()\n  Dim p As pERSON\nEnd Sub\n").add("Person.cls", kInsightClass);
    EXPECT_TRUE(modules.offers(in("  Dim p As |"), "Person"));
}

TEST_F(Completion, HidesWhatLibrariesHide) {
    EXPECT_FALSE(program.offers(in("  x = VBA.|"), "_HiddenInterface"));
    for (const auto& each : program.offer(in("  x = VBA.|")).names) EXPECT_NE(each.name[0], '_');
    EXPECT_FALSE(program.offers(in("  x = |"), "vbMsgBoxText"));
}

TEST_F(Completion, HidesWhatOtherModulesCannotUse) {
    InsightProgram other;
    other.add("Person.cls", kInsightClass + std::string("Public Enum Mood\n  Happy\nEnd Enum\n"))
        .add("Module1.bas", kInsightModule);
    EXPECT_EQ(other.names("Sub Run()\n  Module1.|"), "Pick Report Sum Total Where");
    EXPECT_EQ(other.names("Sub Run()\n  Dim p As Person\n  p.|"), "Age Child Grow Name");
}

TEST_F(Completion, OffersEventsAfterRaiseEvent) {
    InsightProgram other;
    other.add("Person.cls", kInsightClass);
    EXPECT_EQ(other.names("Sub Grow()\n  RaiseEvent |"), "Grown");
    EXPECT_EQ(other.call("Sub Grow()\n  RaiseEvent Grown(|"), "Grown(*By As Integer*)");
    EXPECT_EQ(other.names("Sub Grow()\n  Me.|"), "Age Child Grow Name");
}

// ---- parameter help -------------------------------------------------------------------------------------------------

struct ParameterHelp : Completion {};

TEST_F(ParameterHelp, ShowsThePresentParameter) {
    EXPECT_EQ(program.call(in("  x = Sum(|")), "Sum(*First As Long*, [Second As Long = 2]) As Long");
    EXPECT_EQ(program.call(in("  x = Sum(1, |")), "Sum(First As Long, *[Second As Long = 2]*) As Long");
    EXPECT_EQ(program.call(in("  Sum |")), "Sum(*First As Long*, [Second As Long = 2]) As Long");
    EXPECT_EQ(program.call(in("  Call Sum(1, |")), "Sum(First As Long, *[Second As Long = 2]*) As Long");
    EXPECT_EQ(program.call(in("  x = Sum(1, Second:=|")), "Sum(First As Long, *[Second As Long = 2]*) As Long");
    EXPECT_EQ(program.call(in("  x = Sum(Second:=3, first:=|")), "Sum(*First As Long*, [Second As Long = 2]) As Long");
}

TEST_F(ParameterHelp, WritesLibraryFunctions) {
    EXPECT_EQ(
        program.call(in("  MsgBox |")),
        "MsgBox(*Prompt*, [Buttons As VbMsgBoxStyle = vbOKOnly], [Title], [HelpFile], [Context]) As VbMsgBoxResult");
    EXPECT_EQ(program.call(in("  x = Left$(|")), "Left$(*String As String*, Length As Long) As String");
}

TEST_F(ParameterHelp, FindsTheInnermostCall) {
    EXPECT_EQ(program.call(in("  Report Sum(1, |")), "Sum(First As Long, *[Second As Long = 2]*) As Long");
    EXPECT_EQ(program.call(in("  Report Sum(1, 2), |")), "Report(Text As String, *ParamArray Rest()*)");
    EXPECT_EQ(program.call(in("  Report \"a,(\", 1, 2, (3 + |")), "Report(Text As String, *ParamArray Rest()*)");
    EXPECT_EQ(program.call(in("  Report _\n    \"a\", _\n    |")), "Report(Text As String, *ParamArray Rest()*)");
    EXPECT_EQ(program.call(in("  If Sum(1) Then Report |")), "Report(*Text As String*, ParamArray Rest())");
}

TEST_F(ParameterHelp, KnowsMethods) {
    EXPECT_EQ(program.call(in("  Dim p As Person\n  p.Child(1).Child(|")), "Child(*Index As Long*) As Person");
    EXPECT_EQ(program.call(in("  Dim p As Person\n  With p\n  Set x = .Child(|")), "Child(*Index As Long*) As Person");
    EXPECT_EQ(program.call(in("  Dim c As New Collection\n  c.Add |")), "Add(*Item*, [Key], [Before], [After])");
    EXPECT_EQ(program.call(in("  Dim c As New Collection\n  x = c(|")), "Item(*Index*) As Variant");
}

TEST_F(ParameterHelp, IsAbsentElsewhere) {
    for (const auto* text : {"  x = (|", "  If (|", "  x = Sum(1)|", "  Dim a(3)\n  a(|", "  ' Sum(|", "  Report \"a|",
                             "  Total = |", "  unknown(|"})
        EXPECT_EQ(program.call(in(text)), "") << text;
}

// ---- quick info -----------------------------------------------------------------------------------------------------

struct QuickInfo : Completion {};

TEST_F(QuickInfo, ShowsTheDeclaration) {
    EXPECT_EQ(program.info(in("  Dim Height As Long\n  he|ight = 1\nEnd Sub\n")), "Dim Height As Long");
    EXPECT_EQ(program.info(in("  Tot|al = 1\nEnd Sub\n")), "Public Total As Long");
    EXPECT_EQ(program.info(in("  x = Su|m(1)\nEnd Sub\n")),
              "Function Sum(First As Long, [Second As Long = 2]) As Long");
    EXPECT_EQ(program.info(in("  Dim p As Pers|on\nEnd Sub\n")), "Class Person");
    EXPECT_EQ(program.info(in("  Dim p As Person\n  p.Na|me = 1\nEnd Sub\n")), "Property Name As String");
    EXPECT_EQ(program.info(in("  x = App|le\nEnd Sub\n")), "Const Apple As Fruit = 0");
    EXPECT_EQ(program.info(in("  Form1.txtNa|me.Text = 1\nEnd Sub\n")), "txtName As TextBox");
    EXPECT_EQ(program.info(in("  x = UCa|se(1)\nEnd Sub\n")), "Function UCase(String)\nA text in upper case");
    EXPECT_EQ(program.info("Private Favour|ite As Fruit\n"), "Private Favourite As Fruit");
}

TEST_F(QuickInfo, KnowsNamesThatAreNoExpressions) {
    EXPECT_EQ(program.info(in("  Dim i As Long\n  For i = 1 To 2\n  Next |i\nEnd Sub\n")), "Dim i As Long");
    EXPECT_EQ(program.info("Function F(Given As Per|son)\nEnd Function\n"), "Class Person");
    EXPECT_EQ(program.info("Function F(Giv|en As Long)\nEnd Function\n"), "Given As Long");
}

TEST_F(QuickInfo, IsAbsentForAModuleThatIsNotThere) {
    const qltoolkit::CodePlace nowhere{7, "Sub Main()\n  p."};
    EXPECT_EQ(qltoolkit::namesAt(program.snapshot(), nowhere).kind, OfferKind::Nothing);
    EXPECT_FALSE(qltoolkit::callAt(program.snapshot(), nowhere));
    EXPECT_EQ(qltoolkit::quickInfo(program.snapshot(), -1, "Sub Main()\n", 5), "");
}

TEST_F(QuickInfo, IsAbsentInTexts) {
    EXPECT_EQ(program.info(in("  x = \"Tot|al\"\nEnd Sub\n")), "");
    EXPECT_EQ(program.info(in("  x = 1 ' Tot|al\nEnd Sub\n")), "");
    EXPECT_EQ(program.info(in("  wh|at.ever = 1\nEnd Sub\n")), "Dim what");
}

// ---- the line that is left ------------------------------------------------------------------------------------------

TEST(StatementCheck, FindsTheFirstError) {
    const auto error = qltoolkit::errorOfStatement("  x = (1 + ", true);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->line, 1u);
    EXPECT_TRUE(qltoolkit::errorOfStatement("  If x = 1", true));
    EXPECT_TRUE(qltoolkit::errorOfStatement("Dim x As", false));
    EXPECT_TRUE(qltoolkit::errorOfStatement("Private Sub f(x As", false));
    EXPECT_TRUE(qltoolkit::errorOfStatement("  x = 1 + _\n  )", true));
}

TEST(StatementCheck, LeavesBlocksToTheirOtherLines) {
    for (const auto* text : {"If x Then", "Else",      "ElseIf x Then", "End If",  "For i = 1 To 2", "Next i",
                             "Do",        "Loop",      "Loop Until x",  "With x",  "End With",       "Select Case x",
                             "Case 1, 2", "Case Else", "End Select",    "While x", "Wend",           "End Sub",
                             "x = 1",     "",          "  ' comment",   "Here:",   "10 x = 1"})
        EXPECT_FALSE(qltoolkit::errorOfStatement(text, true)) << text;
    for (const auto* text : {"Sub f()", "Private Type Point", "Public Enum E", "  X As Long", "Apple = 1", "End Type",
                             "Private x As Long", "", "Event Changed(x As Long)"})
        EXPECT_FALSE(qltoolkit::errorOfStatement(text, false)) << text;
}

// ---- libraries ------------------------------------------------------------------------------------------------------

TEST(SharedLibraries, AreMadeOnceAndHaveTheirNumbersInEachSnapshot) {
    InsightProgram one, other;
    one.add("Module1.bas", "Public Apples As Collection\n");
    other.add("Module1.bas", "Public Pears As Collection\nPublic Apples As Long\n");
    EXPECT_EQ(one.snapshot().program().libraries, other.snapshot().program().libraries);
    EXPECT_EQ(one.info("Sub Go()\n  App|les.Add 1\nEnd Sub\n"), "Public Apples As Collection");
    EXPECT_EQ(other.info("Sub Go()\n  App|les = 1\nEnd Sub\n"), "Public Apples As Long");
    EXPECT_EQ(other.names("Sub Go()\n  Pears.|\nEnd Sub\n"), "Add Count Item Remove");
}

TEST(SharedLibraries, AreNotChangedByTheLibrariesOfAProject) {
    InsightProgram with, without;
    with.options.libraries.push_back(language::foreignLibrary("Scripting"));
    with.add("Module1.bas", "Public c As Scripting.Dictionary\n");
    without.add("Module1.bas", "Public c As Scripting.Dictionary\n");
    EXPECT_EQ(with.snapshot().errors(), 0U);
    EXPECT_EQ(without.snapshot().errors(), 1U);
    EXPECT_TRUE(with.offers("Sub Go()\n  c.|\nEnd Sub\n", "Exists"));
}

// ---- names of libraries ---------------------------------------------------------------------------------------------

struct LibraryNamesOfLines : Completion {
    /// The names in the lines from the |.
    std::string in(std::string text) {
        const auto begin = text.find('|');
        text.erase(begin, 1);
        std::string found;
        for (const auto& name : qltoolkit::libraryNamesIn(program.snapshot(), 0, text, begin, text.size()))
            found += (found.empty() ? "" : " ") + name;
        return found;
    }
};

TEST_F(LibraryNamesOfLines, AreThoseOfTheLineAsTheyAreDeclared) {
    EXPECT_EQ(in("Sub Go()\n  beep\n|  msgbox left$(app.path, VBYES) & Total ' trim\nEnd Sub\n"),
              "MsgBox Left App Path vbYes");
    EXPECT_EQ(in("Sub Go()\n  Dim left As Long\n|  left = 1\nEnd Sub\n"), "");
}

TEST_F(LibraryNamesOfLines, AreKnownInDeclarationsToo) {
    EXPECT_EQ(in("|Private c As COLLECTION, n(vbyes) As vbmsgboxstyle"), "Collection vbYes VbMsgBoxStyle");
    EXPECT_EQ(in("|Private Total As Fruit"), "");
}

} // namespace
