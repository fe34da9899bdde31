// The blocks that a line of code opens and ends.
#include "Apps/workbench/editing/block_line.h"
#include <gtest/gtest.h>

using workbench::Block;
using workbench::blockLine;

namespace {

std::string opened(const char* line) { return endOf(blockLine(line).opened()).toStdString(); }
std::string ended(const char* line) {
    std::string ends;
    for (const auto block : blockLine(line).ends) ends += endOf(block).toStdString() + ";";
    return ends;
}
std::string header(const char* line) { return workbench::withParentheses(line).toStdString(); }

} // namespace

TEST(BlockLine, OpensTheBlocksOfTheLanguage) {
    EXPECT_EQ(opened("Sub a()"), "End Sub");
    EXPECT_EQ(opened("private static function b() as long"), "End Function");
    EXPECT_EQ(opened("Friend Property Let Size(x)"), "End Property");
    EXPECT_EQ(opened("    If a Then ' why"), "End If");
    EXPECT_EQ(opened("For Each x In y"), "Next");
    EXPECT_EQ(opened("Do While x"), "Loop");
    EXPECT_EQ(opened("While x"), "Wend");
    EXPECT_EQ(opened("With x.y"), "End With");
    EXPECT_EQ(opened("10 Select Case x"), "End Select");
    EXPECT_EQ(opened("Public Type Point"), "End Type");
    EXPECT_EQ(opened("Enum Kinds"), "End Enum");
    EXPECT_EQ(opened("#If Debugging Then"), "#End If");
    EXPECT_EQ(opened("again: If a Then"), "End If");
}

TEST(BlockLine, OpensNothingInOtherForms) {
    for (const char* line : {"If a Then b",
                             "If a Then b: c",
                             "If a Then For i = 1 To 2",
                             "If a GoTo 10",
                             "For i = 1 To 3: Beep: Next",
                             "Do: Loop",
                             "Exit Sub",
                             "Declare Sub a Lib \"b\" ()",
                             "Private Declare Function f Lib \"x\" () As Long",
                             "' If a Then",
                             "Rem If a Then",
                             "s = \"If a Then",
                             "x.While y",
                             "Open f For Input As #1",
                             "Type = 3",
                             "Sub",
                             "Property Bag",
                             "#Const If = 1",
                             "f a:=If",
                             "",
                             "typeName x",
                             "End"})
        EXPECT_EQ(blockLine(line).opened(), Block::None) << line;
}

TEST(BlockLine, EndsBlocks) {
    EXPECT_EQ(ended("End Sub ' a"), "End Sub;");
    EXPECT_EQ(ended("next i, j"), "Next;Next;");
    EXPECT_EQ(ended("Loop Until x"), "Loop;");
    EXPECT_EQ(ended("Beep: End If"), "End If;");
    EXPECT_EQ(ended("#End If"), "#End If;");
    EXPECT_EQ(ended("nextOne = 3"), "");
    EXPECT_EQ(ended("x.End If"), "");
    EXPECT_EQ(blockLine("Else").middle, Block::If);
    EXPECT_EQ(blockLine("Case Else").middle, Block::Select);
}

TEST(BlockLine, HeadersGetParentheses) {
    EXPECT_EQ(header("Sub a"), "Sub a()");
    EXPECT_EQ(header("Function a As Long ' why"), "Function a() As Long ' why");
    EXPECT_EQ(header("Function Name$"), "Function Name$()");
    EXPECT_EQ(header("Public Property Get Size As Long"), "Public Property Get Size() As Long");
    for (const char* line : {"Sub a(b)", "Exit Sub", "' Sub a", "x = 1"}) EXPECT_EQ(header(line), line);
}
