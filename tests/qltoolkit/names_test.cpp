// How names are found and what types follow, beyond the messages themselves.
#include "tests/qltoolkit/checked_program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using test::CheckedProgram;
using test::messagesOf;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Names, AVariableHasOneNameWithAndWithoutItsTypeCharacter) {
    EXPECT_THAT(messagesOf("Option Explicit\nSub A()\nDim s$, n%\ns = \"\": s$ = s\nn% = n\nEnd Sub"), IsEmpty());
}

TEST(Names, DefTypeGivesTypesByFirstLetters) {
    EXPECT_THAT(
        messagesOf("DefObj O\nDefLng A-C\nSub A()\nDim bean, other\nSet bean = Nothing\nSet other = Nothing\nEnd Sub"),
        ElementsAre("5:5 2105"));
}

TEST(Names, TheNearestDeclarationCounts) {
    // the parameter, the module's own name, the public name of another module, the library
    EXPECT_THAT(CheckedProgram{}
                    .add("M1.bas", "Public Len As Object\nPublic Mid As Object\n")
                    .add("M2.bas", "Private Mid As Long\nSub A(Left As Object)\nSet Left = Nothing\nSet Len = Nothing\n"
                                   "Set Mid = Nothing\nRight \"a\", 1\nEnd Sub\n")
                    .messages(),
                ElementsAre("M2.bas:5:5 2105"));
}

TEST(Names, AFormHasTheNamesOfItsControlsAndOfItsClass) {
    CheckedProgram program;
    program.controls = "   Begin VB.TextBox Text1 \n   End\n   Begin VB.Label Lines \n      Index = 0\n   End\n";
    program.add("Form1.frm", "Option Explicit\nSub A()\nCaption = Text1\nText1.Text = Caption\nMe.Text1 = \"a\"\n"
                             "Lines(0).Caption = \"\"\nLines(0) = Lines.Count\nHide\nText1.Gone = 1\nEnd Sub\n");
    program.add("M1.bas", "Sub B()\nForm1.Text1 = \"\"\nForm1.Show\nDim f As New Form1\nf.Gone\nEnd Sub\n");
    EXPECT_THAT(program.messages(), ElementsAre("Form1.frm:9:7 2002", "M1.bas:5:3 2002"));
}

TEST(Names, FunctionsAreFoundThroughPropertiesOfAForm) {
    EXPECT_THAT(
        CheckedProgram{}.add("Form1.frm", "Sub A()\nCaption = Left(Caption, 1)\nLeft = Left + 1\nEnd Sub\n").messages(),
        IsEmpty());
}

TEST(Names, AFunctionsNameIsItsResultAndCallsIt) {
    EXPECT_THAT(messagesOf("Function F(n As Long) As Long\nF = F + F(n - 1)\nF = F()\nEnd Function\n"
                           "Function G() As Long()\nReDim G(3)\nG(1) = 2\nEnd Function"),
                ElementsAre("3:5 2200"));
}

TEST(Names, MembersOfEnumerationsNeedNoQualifier) {
    EXPECT_THAT(
        CheckedProgram{}
            .add("Class1.cls", "Public Enum Shade\nLight = 1\nDark\nEnd Enum\nPrivate Enum Own\nHidden\nEnd Enum\n"
                               "Sub A()\nDim x\nx = Own.Hidden + Shade.Dark\nx = Shade.Gone\nEnd Sub\n")
            .add("M1.bas", "Option Explicit\nSub A()\nDim x As Shade\nx = Dark + Shade.Light\nx = Hidden\nEnd Sub\n")
            .messages(),
        ElementsAre("Class1.cls:11:11 2002", "M1.bas:5:5 2000"));
}

TEST(Names, LibrariesModulesAndTheProjectQualify) {
    EXPECT_THAT(
        messagesOf("Public Total\nSub A()\nTotal = VBA.Left(\"a\", 1) & VBA.Strings.Mid$(\"a\", 1)\n"
                   "Module1.Total = Project1.Module1.Total\nProject1.Total = VBA.vbCrLf & Strings.Gone\nEnd Sub"),
        ElementsAre("5:39 2002"));
}

TEST(Names, PrivateMembersAreNotReachedThroughAnObject) {
    EXPECT_THAT(
        CheckedProgram{}.add("Class1.cls", "Private x\nPublic y\nSub A()\nMe.y = x\nMe.x = y\nEnd Sub\n").messages(),
        ElementsAre("5:4 2002"));
}

TEST(Names, ReDimDeclaresWhatTheProjectDoesNotHave) {
    EXPECT_THAT(
        messagesOf("Option Explicit\nSub A()\nReDim list(3) As Long\nlist(1) = 2\nReDim Asc(2)\nAsc(1) = 3\nEnd Sub"),
        IsEmpty());
}

TEST(Names, AVariableMayHaveTheNameOfItsClass) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Info.cls", "Public Size As Long\n")
                    .add("M1.bas", "Public Info As New Info\n")
                    .add("M2.bas", "Sub A()\nInfo.Size = 1\nInfo.Gone = 2\nEnd Sub\n")
                    .messages(),
                ElementsAre("M2.bas:3:6 2002"));
}

TEST(Names, ANameIsReportedOnceInAProcedure) {
    EXPECT_THAT(messagesOf("Option Explicit\nSub A()\nx = 1\nx = x + 1\nEnd Sub\nSub B()\nx = 2\nEnd Sub"),
                ElementsAre("3:1 2000", "7:1 2000"));
}

TEST(Names, TheDrawingMethodsTakeTheirOwnWords) {
    EXPECT_THAT(CheckedProgram{}
                    .add("Form1.frm",
                         "Option Explicit\nSub A()\nLine (1, 2)-(3, 4), vbRed, BF\nCircle (1, 2), 3\nPSet (x, 1)\n"
                         "Print 1; Tab(5); \"a\"\nDebug.Print 1, 2\nEnd Sub\n")
                    .messages(),
                ElementsAre("5:7 2000"));
}

TEST(Names, DefaultMembersComeFromAttributes) {
    const std::string list = "Public Property Get Item(i As Long) As String\nEnd Property\n"
                             "Public Property Let Item(i As Long, v As String)\nEnd Property\n";
    const std::string user = "Sub A(c As List)\nc(1) = c(2) & c!a\nEnd Sub\n";
    EXPECT_THAT(
        CheckedProgram{}.add("List.cls", list + "Attribute Item.VB_UserMemId = 0\n").add("M1.bas", user).messages(),
        IsEmpty());
    EXPECT_THAT(CheckedProgram{}.add("List.cls", list).add("M1.bas", user).messages(),
                ElementsAre("M1.bas:2:1 2201", "M1.bas:2:8 2201"));
}

TEST(Names, ConstantsAreEvaluatedInAnyOrder) {
    EXPECT_THAT(messagesOf("Const a = b * 2\nConst b = c + 1\nPrivate Enum E\nx = a\ny\nEnd Enum\nConst c = 3\n"
                           "Dim list(a To y) As String * b\nDim wrong(y To a)"),
                ElementsAre("9:16 2602"));
}

TEST(Names, LongChainsNeedNoDeepStack) {
    std::string sum = "Const a = 1", members = "Sub A(o As Object)\no", enumeration = "Enum E\n";
    for (int i = 0; i < 20000; ++i) {
        sum += i % 20 == 19 ? " + _\n1" : " + 1";
        members += ".b";
        enumeration += "m" + std::to_string(i) + "\n";
    }
    EXPECT_THAT(messagesOf(members + "\nEnd Sub"), IsEmpty());
    EXPECT_THAT(messagesOf("Const last = m19999\n" + enumeration + "End Enum"), IsEmpty());
}

TEST(Names, MessagesDoNotDependOnTheNumberOfThreads) {
    const auto messages = [](unsigned threads) {
        CheckedProgram program;
        program.options.threads = threads;
        program.options.isIncomplete = true;
        for (int i = 0; i < 50; ++i)
            program.add("M" + std::to_string(i) + ".bas",
                        "Sub A()\nDim n As Long\nn = Missing" + std::to_string(i % 7) + "\nn.x = 1\nEnd Sub\n");
        return program.messages();
    };
    const auto one = messages(1);
    EXPECT_EQ(one.size(), 57U);
    for (const unsigned threads : {2U, 8U}) EXPECT_EQ(messages(threads), one);
}

TEST(Names, AFileWithTooManyErrorsIsLeft) {
    std::string code = "Option Explicit\n";
    for (int i = 0; i < 600; ++i) code += "Sub A" + std::to_string(i) + "()\nx = 1\nEnd Sub\n";
    const auto messages = messagesOf(code);
    EXPECT_EQ(messages.size(), 501U);
    EXPECT_TRUE(messages.back().ends_with(" 1009"));
}
