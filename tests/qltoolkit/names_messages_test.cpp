// Each message about names and types: a program that gives exactly it, and one close to it that gives none.
#include "Components/Language/foreign.h"
#include "tests/qltoolkit/checked_program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct MessageCase {
    int number;
    const char* wrong;
    const char* place; ///< of the message in the wrong program
    const char* right;
};

const MessageCase kCases[] = {
    // Names
    {2000, "Option Explicit\nSub A()\nDim Total\nTotl = 1\nEnd Sub", "4:1",
     "Option Explicit\nSub A()\nDim Total\ntotal = 1\nEnd Sub"},
    {2000, "Option Explicit\nSub A()\nDim x\nx = 1 + Missing\nEnd Sub", "4:9",
     "Sub A()\nDim x\nx = 1 + Missing\nEnd Sub"},
    {2001, "Sub A()\nDim x\nx = Missing(1)\nEnd Sub", "3:5",
     "Sub A()\nDim x\nx = Found(1)\nEnd Sub\nFunction Found(n)\nEnd Function"},
    {2001, "Sub A()\nMissing 1\nEnd Sub", "2:1", "Sub A()\nB 1\nEnd Sub\nSub B(n)\nEnd Sub"},
    {2002, "--- Class1.cls\nPublic Sub Go()\nEnd Sub\n--- Module1.bas\nSub A(c As Class1)\nc.Gone\nEnd Sub",
     "Module1.bas:2:3", "--- Class1.cls\nPublic Sub Go()\nEnd Sub\n--- Module1.bas\nSub A(c As Class1)\nc.Go\nEnd Sub"},
    {2002, "Private Type P\n  X As Long\nEnd Type\nSub A()\nDim p As P\np.Y = 1\nEnd Sub", "6:3",
     "Private Type P\n  X As Long\nEnd Type\nSub A()\nDim p As P\np.X = 1\nEnd Sub"},
    {2003, "Sub A(x As Missing)\nEnd Sub", "1:12", "Sub A(x As Collection)\nEnd Sub"},
    {2004, "--- M1.bas\nPublic x\n--- M2.bas\nPublic x\n--- M3.bas\nSub A()\nx = 1\nEnd Sub", "M3.bas:2:1",
     "--- M1.bas\nPublic x\n--- M2.bas\nPublic x\n--- M3.bas\nSub A()\nM1.x = M2.x\nEnd Sub"},
    {2004, "Sub A()\nEnd Sub\nSub A()\nEnd Sub", "3:5", "Sub A()\nEnd Sub\nSub B()\nEnd Sub"},
    {2005, "Sub A()\nDim x\nDim X\nEnd Sub", "3:5", "Sub A()\nDim x\nDim y\nEnd Sub"},
    {2005, "Sub A(x)\nDim x\nEnd Sub", "2:5", "Dim x\nSub A(y)\nDim x\nEnd Sub"},
    {2006, "Sub A()\nGoTo There\nHere:\nEnd Sub", "2:6", "Sub A()\nGoTo Here\nHere:\nEnd Sub"},
    {2006, "Sub A()\nOn Error GoTo 20\n10 Beep\nEnd Sub", "2:15", "Sub A()\nOn Error GoTo 10\n10 Beep\nEnd Sub"},
    {2006, "Sub A()\nHere:\nEnd Sub\nSub B()\nGoTo Here\nEnd Sub", "5:6",
     "Sub A()\nHere:\nEnd Sub\nSub B()\nGoTo Here\nHere:\nEnd Sub"},
    {2007, "Sub A()\nHere:\nIf True Then\nHere:\nEnd If\nEnd Sub", "4:1",
     "Sub A()\nHere:\nEnd Sub\nSub B()\nHere:\nEnd Sub"},
    {2008, "Sub A()\nDim x\nx = Module1\nEnd Sub", "3:5", "Public y\nSub A()\nDim x\nx = Module1.y\nEnd Sub"},
    {2009, "Sub A()\nDim x\nSet x = Me\nEnd Sub", "3:9", "--- Class1.cls\nSub A()\nDim x\nSet x = Me\nEnd Sub"},
    {2010, "Sub A()\n.Go\nEnd Sub", "2:2", "Sub A(c As Object)\nWith c\n.Go\nEnd With\nEnd Sub"},
    {2011, "Sub A(x As Project1)\nEnd Sub", "1:12", "Sub A(x As VBA.Collection)\nEnd Sub"},
    {2012, "Sub A()\nLSet Left(\"a\", 1) = 1\nEnd Sub", "2:6", "Sub A()\nDim s\nLSet s = 1\nEnd Sub"},
    // Types
    {2100, "Private Type P\n  X As Long\nEnd Type\nSub A()\nDim a As P, n As Long\nn = a\nEnd Sub", "6:5",
     "Private Type P\n  X As Long\nEnd Type\nSub A()\nDim a As P, n As Long\nn = a.X\nEnd Sub"},
    {2100, "Sub A()\nDim a(3), n As Long\nn = a + 1\nEnd Sub", "3:7",
     "Sub A()\nDim a(3), n As Long\nn = a(1) + 1\nEnd Sub"},
    {2101, "Sub A()\nDim n As Integer\nB n\nEnd Sub\nSub B(x As Long)\nEnd Sub", "3:3",
     "Sub A()\nDim n As Integer\nB (n)\nC n\nEnd Sub\nSub B(x As Long)\nEnd Sub\nSub C(ByVal x As Long)\nEnd Sub"},
    {2102, "Const a = b\nDim b", "1:11", "Const a = b\nConst b = 1"},
    {2103, "Const a = 30000 + 30000", "1:17", "Const a = 30000& + 30000"},
    {2103, "Enum E\n  A = &H7FFFFFFF\n  B\nEnd Enum", "3:3", "Enum E\n  A = &H7FFFFFFE\n  B\nEnd Enum"},
    {2104, "Const a = 1 / 0", "1:13", "Sub A()\nDim x\nx = 1 / 0\nEnd Sub"},
    {2105, "Sub A()\nDim n As Long\nSet n = Nothing\nEnd Sub", "3:5",
     "Sub A()\nDim n As Object\nSet n = Nothing\nEnd Sub"},
    {2106, "Sub A()\nDim n As Long\nn = n(1)\nEnd Sub", "3:5", "Sub A()\nDim n() As Long\nn(0) = n(1)\nEnd Sub"},
    {2107, "Sub A()\nDim n(3) As Long, m() As Long\nn = m\nEnd Sub", "3:1",
     "Sub A()\nDim n(3) As Long, m() As Long\nm = n\nEnd Sub"},
    {2108, "Const c = 1\nSub A()\nc = 2\nEnd Sub", "3:1", "Const c = 1\nSub A()\nDim c\nc = 2\nEnd Sub"},
    {2109, "Sub A()\nDim x\nx = B\nEnd Sub\nSub B()\nEnd Sub", "3:5",
     "Sub A()\nDim x\nx = B\nEnd Sub\nFunction B()\nEnd Function"},
    {2111, "Sub A()\nDim c As Collection\nc = Nothing\nEnd Sub", "3:5",
     "Sub A()\nDim c As Collection\nSet c = Nothing\nEnd Sub"},
    {2112, "Sub A()\nDim n As Long\nn.Go\nEnd Sub", "3:1", "Sub A()\nDim n As Object\nn.Go\nEnd Sub"},
    {2112, "Sub A()\nDim n As Long\nn!Go = 1\nEnd Sub", "3:1", "Sub A()\nDim n As Object\nn!Go = 1\nEnd Sub"},
    {2112, "Sub A()\nDim s As String, x\nx = s!Go\nEnd Sub", "3:5", "Sub A()\nDim s, x\nx = s!Go\nEnd Sub"},
    {2112, "Sub A()\nDim v(3), x\nx = v!Go\nEnd Sub", "3:5", "Sub A()\nDim v(3), x\nx = v(1)!Go\nEnd Sub"},
    {2113, "Private Type P\n  X As Long\nEnd Type\nSub A()\nDim a As P, v\nv = a\nEnd Sub", "6:5",
     "Private Type P\n  X As Long\nEnd Type\nSub A()\nDim a As P, b As P\nb = a\nEnd Sub"},
    {2114, "Sub A()\nDim n As Long, c As Collection\nFor Each n In c\nNext\nEnd Sub", "3:10",
     "Sub A()\nDim n, c As Collection\nFor Each n In c\nNext\nEnd Sub"},
    {2115, "Sub A()\nDim i\nFor i = 1 To 2\nFor i = 1 To 2\nNext\nNext\nEnd Sub", "4:5",
     "Sub A()\nDim i\nFor i = 1 To 2\nNext\nFor i = 1 To 2\nNext\nEnd Sub"},
    {2116, "Private Type P\n  X As Long\nEnd Type\nSub A()\nDim a(3) As P, v\nFor Each v In a\nNext\nEnd Sub", "6:15",
     "Sub A()\nDim a(3) As Long, v\nFor Each v In a\nNext\nEnd Sub"},
    {2117, "Sub A()\nB(1) = 2\nEnd Sub\nFunction B(n) As Long\nEnd Function", "2:1",
     "Sub A()\nB(1) = 2\nEnd Sub\nFunction B(n) As Object\nEnd Function"},
    {2118, "Dim n As Long\nSub A()\nn$ = \"\"\nEnd Sub", "3:1", "Dim n As Long\nSub A()\nn& = 1\nEnd Sub"},
    {2119, "Sub A()\nDim v, n As Long\nFor Each v In n\nNext\nEnd Sub", "3:15",
     "Sub A()\nDim v, n\nFor Each v In n\nNext\nEnd Sub"},
    // Arguments
    {2200, "Sub A()\nB\nEnd Sub\nSub B(x)\nEnd Sub", "2:1", "Sub A()\nB\nEnd Sub\nSub B(Optional x)\nEnd Sub"},
    {2201, "Sub A()\nB 1, 2\nEnd Sub\nSub B(x)\nEnd Sub", "2:1",
     "Sub A()\nB 1, 2\nEnd Sub\nSub B(ParamArray x())\nEnd Sub"},
    {2202, "Sub A()\nB y:=1\nEnd Sub\nSub B(Optional x)\nEnd Sub", "2:6",
     "Sub A()\nB x:=1\nEnd Sub\nSub B(Optional x)\nEnd Sub"},
    {2203, "Sub A()\nB 1, x:=1\nEnd Sub\nSub B(x, Optional y)\nEnd Sub", "2:9",
     "Sub A()\nB 1, y:=1\nEnd Sub\nSub B(x, Optional y)\nEnd Sub"},
    {2204, "Sub A()\nDim a(1, 2)\na(1) = 0\nEnd Sub", "3:1", "Sub A()\nDim a(1, 2)\na(1, 1) = 0\nEnd Sub"},
    {2205, "Sub A()\nB AddressOf Missing\nEnd Sub\nSub B(ByVal x As Long)\nEnd Sub", "2:3",
     "Sub A()\nB AddressOf A\nEnd Sub\nSub B(ByVal x As Long)\nEnd Sub"},
    {2206, "Sub A()\nB y:=1\nEnd Sub\nSub B(ParamArray x())\nEnd Sub", "2:6",
     "Sub A()\nB 1\nEnd Sub\nSub B(ParamArray x())\nEnd Sub"},
    // Properties
    {2300, "Property Get P(i)\nEnd Property\nProperty Let P(v)\nEnd Property", "3:14",
     "Property Get P(i)\nEnd Property\nProperty Let P(i, v)\nEnd Property"},
    {2301, "Property Get P()\nP = 1\nEnd Property\nSub A()\nP = 1\nEnd Sub", "5:1",
     "Property Get P()\nEnd Property\nProperty Let P(v)\nEnd Property\nSub A()\nP = 1\nEnd Sub"},
    {2302, "Property Let P(v)\nEnd Property\nSub A()\nDim x\nx = P\nEnd Sub", "5:5",
     "Property Get P()\nEnd Property\nProperty Let P(v)\nEnd Property\nSub A()\nDim x\nx = P\nEnd Sub"},
    {2110, "Property Set P(v As Object)\nEnd Property\nSub A()\nP = 1\nEnd Sub", "4:1",
     "Property Set P(v As Object)\nEnd Property\nSub A()\nSet P = Nothing\nEnd Sub"},
    // Jumps
    {2400, "Sub A()\nExit Do\nEnd Sub", "2:1", "Sub A()\nDo\nExit Do\nLoop\nEnd Sub"},
    {2401, "Sub A()\nDo\nExit For\nLoop\nEnd Sub", "3:1", "Sub A()\nDim v\nFor Each v In v\nExit For\nNext\nEnd Sub"},
    {2402, "Sub A()\nExit Function\nEnd Sub", "2:1", "Function A()\nExit Function\nEnd Function"},
    // Classes
    {2500, "--- I.cls\nPublic Sub Go()\nEnd Sub\n--- Class1.cls\nImplements I", "Class1.cls:1:12",
     "--- I.cls\nPublic Sub Go()\nEnd Sub\n--- Class1.cls\nImplements I\nPrivate Sub I_Go()\nEnd Sub"},
    {2501, "--- Class1.cls\nSub A()\nRaiseEvent Done\nEnd Sub", "2:1",
     "--- Class1.cls\nEvent Done()\nSub A()\nRaiseEvent Done\nEnd Sub"},
    {2502,
     "--- Source.cls\nEvent Done(n As Long)\n--- Class1.cls\nPrivate WithEvents s As Source\nPrivate Sub s_Done()\nEnd "
     "Sub",
     "Class1.cls:2:13",
     "--- Source.cls\nEvent Done(n As Long)\n--- Class1.cls\nPrivate WithEvents s As Source\nPrivate Sub s_Done(n As "
     "Long)\nEnd Sub"},
    {2503, "--- Source.cls\nPublic x\n--- Class1.cls\nPrivate WithEvents s As Source", "Class1.cls:1:25",
     "--- Source.cls\nEvent Done()\n--- Class1.cls\nPrivate WithEvents s As Source"},
    {2504, "Const a = b\nConst b = a", "1:7", "Const a = b\nConst b = 1"},
    {2504, "Private Type P\n  Q As P\nEnd Type", "1:1", "Private Type P\n  Q() As P\nEnd Type"},
    {2505, "--- Class1.cls\nImplements E\nPrivate Enum E\n  x\nEnd Enum", "1:12",
     "--- I.cls\n--- Class1.cls\nImplements I"},
    {2507, "--- Module1.bas\nSub A()\nDim x\nSet x = New ErrObject\nEnd Sub", "3:9",
     "--- Module1.bas\nSub A()\nDim x\nSet x = New Collection\nEnd Sub"},
    {2508, "--- Class1.cls\nPublic Const c = 1", "1:14", "--- Class1.cls\nPrivate Const c = 1"},
    {2508, "--- Class1.cls\nPublic c(3)", "1:8", "--- Class1.cls\nPublic c"},
    // Arrays
    {2600, "Sub A()\nDim a(3)\nReDim a(4)\nEnd Sub", "3:7", "Sub A()\nDim a()\nReDim a(4)\nEnd Sub"},
    {2602, "Dim a(5 To 3)", "1:12", "Dim a(3 To 5)"},
    {2013, "Dim n As Long\nSub A()\nn\nEnd Sub", "3:1", "Dim n As Long\nSub A()\nB\nEnd Sub\nSub B()\nEnd Sub"},
    {2506, "--- Class1.cls\nPrivate Enum E\nx\nEnd Enum\nPublic Sub A(p As E)\nEnd Sub", "4:12",
     "--- Class1.cls\nPrivate Enum E\nx\nEnd Enum\nFriend Sub A(p As E)\nEnd Sub"},
    {2604, "Private Type P\n  A(70000) As Byte\nEnd Type", "1:1", "Private Type P\n  A(60000) As Byte\nEnd Type"},
    {2802, "--- Form1.frm\nPrivate Sub Timer1_Click()\nEnd Sub", "1:13",
     "--- Form1.frm\nPrivate Sub Timer1_Timer()\nEnd Sub"},
    {2803, "Sub A()\nShell \"a\"\nEnd Sub", "2:1", "Sub A()\nBeep\nEnd Sub"},
    {2803, "Sub A(x As Printer)\nEnd Sub", "1:12", "Sub A(x As Clipboard)\nEnd Sub"},
    {2803, "Sub A()\nDim x\nSet x = CreateObject(\"Scripting.Encoder\")\nEnd Sub", "3:9",
     "Sub A()\nDim x\nSet x = CreateObject(\"Scripting.FileSystemObject\")\nEnd Sub"},
    {2803, "Sub A()\nDim x\nSet x = CreateObject(\"Other.Thing\")\nEnd Sub", "3:9",
     "Sub A()\nDim x\nSet x = CreateObject(\"Scripting.Dictionary\")\nEnd Sub"},
    {2119, "--- Class1.cls\nPublic x\n--- M1.bas\nSub A(c As Class1)\nDim v\nFor Each v In c\nNext\nEnd Sub",
     "M1.bas:3:15",
     "--- Class1.cls\nFunction NewEnum() As IUnknown\nAttribute NewEnum.VB_UserMemId = -4\nEnd Function\n"
     "--- M1.bas\nSub A(c As Class1)\nDim v\nFor Each v In c\nNext\nEnd Sub"},
    {2119, "Sub A()\nDim v\nFor Each v In Clipboard\nNext\nEnd Sub", "3:15",
     "Sub A()\nDim v, c As New Collection\nFor Each v In c\nNext\nEnd Sub"},
    // Warnings that have to be asked for
    {2900, "Sub A()\nx = 1\nEnd Sub", "2:1", "Sub A()\nDim x\nx = 1\nEnd Sub"},
    {2901, "Sub A()\nDim x\nEnd Sub", "2:5", "Sub A()\nDim x\nx = 1\nEnd Sub"},
    {2902, "Function A()\nBeep\nEnd Function", "1:10", "Function A()\nA = 1\nEnd Function"},
    {2903, "Dim a, b As Integer", "1:5", "Dim a As Long, b As Integer"},
    {2904, "Sub A(n)\nA (n)\nEnd Sub", "2:1", "Sub A(n)\nA n\nEnd Sub"},
    {2906, "Sub A()\nExit Sub\nBeep\nEnd Sub", "3:1", "Sub A()\nExit Sub\nHere:\nBeep\nEnd Sub"},
    {2907, "Dim n\nSub A()\nn = 2000 * 365\nEnd Sub", "3:10", "Dim n\nSub A()\nn = 2000& * 365\nEnd Sub"},
    {2908, "Dim n\nSub A()\nIf n = Null Then Beep\nEnd Sub", "3:6", "Dim n\nSub A()\nIf IsNull(n) Then Beep\nEnd Sub"},
    {2909, "Dim n\nSub A()\nn = 1 / 0\nEnd Sub", "3:7", "Dim n\nSub A()\nn = 1 / 2\nEnd Sub"},
};

const char* const kTimer = "   Begin VB.Timer Timer1 \n      Interval        =   5\n   End\n";

std::vector<std::string> messagesOf(const MessageCase& each, std::string_view modules) {
    test::CheckedProgram program;
    program.controls = kTimer;
    program.options.warnsOptionally = each.number >= 2900;
    program.options.warnsOfDevices = each.number == 2803;
    return program.addAll(modules).messages();
}

std::string withNumber(const MessageCase& each) { return std::string(each.place) + " " + std::to_string(each.number); }

} // namespace

TEST(NameMessages, EachIsGivenWhereItIsWrongAndNotBesideIt) {
    for (const auto& each : kCases) {
        EXPECT_THAT(messagesOf(each, each.wrong), ElementsAre(withNumber(each))) << each.wrong;
        EXPECT_THAT(messagesOf(each, each.right), IsEmpty()) << each.right;
    }
}

TEST(NameMessages, AnArrayHasAtMostSixtyDimensions) {
    std::string bounds = "1";
    for (int i = 1; i < 60; ++i) bounds += ",1";
    EXPECT_THAT(test::messagesOf("Dim a(" + bounds + ") As Byte"), IsEmpty());
    EXPECT_THAT(test::messagesOf("Dim a(" + bounds + ",1) As Byte"), ElementsAre("1:5 2603"));
    EXPECT_THAT(test::messagesOf("Sub A()\nReDim x(" + bounds + ",1)\nEnd Sub"), ElementsAre("2:7 2603"));
}

TEST(NameMessages, AControlOfAnUnknownClassIsReportedAtItsLine) {
    test::CheckedProgram program;
    program.controls = "   Begin VB.Label Label1 \n   End\n   Begin VB.Missing Missing1 \n   End\n";
    program.text("Form1.frm", "VERSION 5.00\nBegin VB.Form Form1 \n" + program.controls +
                                  "End\nAttribute VB_Name = \"Form1\"\nSub A()\nMissing1.Anything\nEnd Sub\n");
    EXPECT_EQ(program.firstPlace(), "Form1.frm:5:4 2800");
}

TEST(NameMessages, AControlThatDevicesLackIsReportedAtItsLine) {
    test::CheckedProgram program;
    program.options.warnsOfDevices = true;
    program.controls = "   Begin VB.Data Data1 \n   End\n";
    program.add("Form1.frm", "Sub A()\nEnd Sub\n");
    EXPECT_EQ(program.firstPlace(), "Form1.frm:3:4 2803");
}

TEST(NameMessages, AClassOfALibraryThatDevicesLackIsReportedOnceAPlace) {
    test::CheckedProgram program;
    program.options.warnsOfDevices = true;
    program.options.libraries = {language::foreignLibrary("ADODB")};
    program.options.isIncomplete = true;
    program.add("Module1.bas", "Private all As ADODB.Recordset\nSub A()\nDim one As ADODB.Connection\none.Open\n"
                               "Set all = New ADODB.Recordset\nEnd Sub\n");
    EXPECT_THAT(program.messages(), ElementsAre("1:16 2803", "3:12 2803", "5:15 2803"));
    EXPECT_EQ(program.results()[0].diagnostics[0].text, "ADODB.Recordset is not available on devices.");
    EXPECT_THAT(program.results()[0].diagnostics[0].instead, testing::StartsWith("Use QLDatabase"));
}

TEST(NameMessages, WhatPrintsIsExplainedAsPrinting) {
    const auto lackIn = [](const std::string& code) {
        test::CheckedProgram program;
        program.options.warnsOfDevices = true;
        program.add("Form1.frm", code);
        const auto results = program.results();
        return results[0].diagnostics.empty() ? qltoolkit::Lack::None : results[0].diagnostics[0].lack;
    };
    using qltoolkit::Lack;
    EXPECT_EQ(lackIn("Sub A()\nPrinter.EndDoc\nEnd Sub\n"), Lack::Printing);
    EXPECT_EQ(lackIn("Sub A()\nDim n\nn = Printers.Count\nEnd Sub\n"), Lack::Printing);
    EXPECT_EQ(lackIn("Sub A()\nMe.PrintForm\nEnd Sub\n"), Lack::Printing);
    EXPECT_EQ(lackIn("Sub A(x As Printer)\nEnd Sub\n"), Lack::Printing);
    EXPECT_EQ(lackIn("Sub A(x As Printers)\nEnd Sub\n"), Lack::Printing);
    EXPECT_EQ(lackIn("Sub A()\nShell \"a\"\nEnd Sub\n"), Lack::Function);
}

TEST(NameMessages, NullHasNoValueOfAnotherType) {
    const auto messages = [](const std::string& call) { return test::messagesOf("Const c = " + call); };
    for (const auto* const name : {"CBool", "CByte", "CCur", "CDate", "CDbl", "CInt", "CLng", "CSng", "CStr"})
        EXPECT_THAT(messages(name + std::string("(Null)")), testing::SizeIs(1)) << name;
    for (const auto* const name : {"Abs", "CVar", "Fix", "Int", "Len", "LenB", "Sgn"})
        EXPECT_THAT(messages(name + std::string("(Null)")), IsEmpty()) << name;
}

TEST(NameMessages, WhatHasNoValueIsNamed) {
    const auto textOf = [](const std::string& name) {
        test::CheckedProgram program;
        program.add("Module1.bas", "Enum Colour\n  Red\nEnd Enum\nSub A()\nDim x\nx = " + name + "\nEnd Sub\n");
        const auto results = program.results();
        return results[0].diagnostics.empty() ? "" : results[0].diagnostics[0].text;
    };
    EXPECT_EQ(textOf("Module1"), "Expected variable or procedure, not module.");
    EXPECT_EQ(textOf("Project1"), "Expected variable or procedure, not project.");
    EXPECT_EQ(textOf("VBA"), "Expected variable or procedure, not library.");
    EXPECT_EQ(textOf("Module1.Colour"), "Expected variable or procedure, not Enum type.");
}

TEST(NameMessages, APropertyThatItsClassLacksIsReportedAtItsLine) {
    const auto library = language::readLibrary("Library Tavlets\nClass QLLabel\nProperty Caption As String\n");
    test::CheckedProgram program;
    program.options.libraries = {&library};
    program.text("Form1.frm", "VERSION 5.00\nBegin VB.Form Form1 \n   Begin TavletsCtl.QLLabel Label1 \n"
                              "      _ExtentX        =   5\n      TabIndex        =   0\n      Caption         =   "
                              "\"a\"\n      Colour          =   5\n"
                              "   End\nEnd\nAttribute VB_Name = \"Form1\"\n");
    EXPECT_EQ(program.firstPlace(), "Form1.frm:7:7 2801");
}

TEST(NameMessages, APropertyThatAControlOfTheLanguageLacksIsReportedAtItsLine) {
    test::CheckedProgram program;
    program.controls =
        "   Begin VB.Label Label1 \n      IMEMode = 3\n      Caption = \"a\"\n      Captoin = \"a\"\n   End\n";
    program.add("Form1.frm", "");
    EXPECT_EQ(program.firstPlace(), "Form1.frm:6:7 2801");
}

TEST(NameMessages, NamesOfMissingLibrariesAreMentionedOnce) {
    test::CheckedProgram program;
    program.options.isIncomplete = true;
    program.add("M1.bas", "Option Explicit\nSub A()\nMissing = 1\nmissing 2\nEnd Sub\n");
    program.add("M2.bas", "Option Explicit\nSub B()\nDim x As Gone\nx.Anything = Missing\nOther\nEnd Sub\n");
    EXPECT_THAT(program.messages(), ElementsAre("M1.bas:3:1 2905", "M2.bas:5:1 2905"));
}
