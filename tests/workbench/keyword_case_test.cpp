// Keywords get their proper case when the user leaves the typed line.
#include "Apps/workbench/code/keyword_case.h"
#include "tests/workbench/open_desktop.h"

using workbench::withKeywordCase;

namespace {

std::string written(const char* line) { return withKeywordCase(QString::fromUtf8(line)).toStdString(); }

class KeywordCase : public test::OpenDesktop {
protected:
    QsciScintilla& edit(const std::string& lines) {
        open(test::SampleProject().module("modA", lines));
        return code("modA");
    }
    /// Waits until the cursor's move has been handled.
    void settleLine() { QTest::qWait(100); }
};

} // namespace

TEST(KeywordCaseOfLine, KeywordsGetTheirProperCase) {
    EXPECT_EQ(written("public sub main()"), "Public Sub main()");
    EXPECT_EQ(written("  IF a THEN exit sub else b = not c"), "  If a Then Exit Sub Else b = Not c");
    EXPECT_EQ(written("dim a as new collection, b as date"), "Dim a As New collection, b As Date");
    EXPECT_EQ(written("#if quinloft then"), "#If quinloft Then");
    EXPECT_EQ(written("option explicit: dim x as string * 5"), "Option Explicit: Dim x As String * 5");
    EXPECT_EQ(written("close #1: redim preserve a(cvdate)"), "Close #1: ReDim Preserve a(cvdate)");
    EXPECT_EQ(written("x = cvar(cdec(1))"), "x = CVar(CDec(1))");
    EXPECT_EQ(written(""), "");
}

TEST(KeywordCaseOfLine, EverythingElseIsUnchanged) {
    for (const char* line :
         {"' if then", "s = \"if \" & t & \"\"\"then\"", "x.next = y.end", "rs!type = 1", "name = date",
          "call_me = ifx + xif", "f type:=1", "[end] = 2", "überif = 1", "line = base"})
        EXPECT_EQ(written(line), line);
    EXPECT_EQ(written("rem if then"), "Rem if then");
    EXPECT_EQ(written("beep: rem if"), "beep: Rem if");
    EXPECT_EQ(written("x = \"open if"), "x = \"open if");
    EXPECT_EQ(written("if x then ' if then"), "If x Then ' if then");
}

TEST(KeywordCaseOfLine, ACommentMayContinueOnTheNextLine) {
    EXPECT_TRUE(workbench::continuesComment("' why _"));
    EXPECT_TRUE(workbench::continuesComment("Beep ' why _"));
    EXPECT_TRUE(workbench::continuesComment("Rem why _"));
    EXPECT_FALSE(workbench::continuesComment("f a, _"));
    EXPECT_FALSE(workbench::continuesComment("f \"'\", _"));
    EXPECT_FALSE(workbench::continuesComment("' why"));
}

TEST_F(KeywordCase, IsCorrectedWhenTheUserLeavesATypedLine) {
    auto& text = edit("sub a()\r\n\r\nend sub\r\n");
    text.setCursorPosition(1, 0);
    QTest::keyClicks(&text, "dim x as long");
    settleLine();
    EXPECT_EQ(held("modA"), "sub a()\ndim x as long\nend sub"); // not while the user is typing
    QTest::keyClick(&text, Qt::Key_Return);
    settleLine();
    EXPECT_EQ(held("modA"), "sub a()\nDim x As Long\n\nend sub"); // nor a line that was not edited
    EXPECT_EQ(text.text().toStdString(), held("modA"));
    int line = 0, column = 0;
    text.getCursorPosition(&line, &column);
    EXPECT_EQ(std::pair(line, column), std::pair(2, 0));
}

TEST_F(KeywordCase, CanBeUndoneAndIsNotDoneAgain) {
    auto& text = edit("\r\n\r\n");
    QTest::keyClicks(&text, "dim x");
    QTest::keyClick(&text, Qt::Key_Down);
    settleLine();
    EXPECT_EQ(held("modA"), "Dim x\n");
    text.undo();
    EXPECT_EQ(held("modA"), "dim x\n");
    text.setCursorPosition(1, 0);
    settleLine();
    EXPECT_EQ(held("modA"), "dim x\n");
    text.redo();
    EXPECT_EQ(held("modA"), "Dim x\n");
}

TEST_F(KeywordCase, IsUnchangedInEditsOfCommandsAndAddIns) {
    auto& text = edit("beep\r\nbeep\r\n");
    text.insertAt("if ", 0, 0);
    component("modA")->CodeModule()->InsertLines(1, "if x then");
    text.setCursorPosition(2, 0);
    settleLine();
    EXPECT_EQ(held("modA"), "if x then\nif beep\nbeep");
}

TEST_F(KeywordCase, IsUnchangedInALineThatAnAddInReplaced) {
    auto& text = edit("\r\n\r\n");
    QTest::keyClicks(&text, "dim x");
    component("modA")->CodeModule()->InsertLines(1, "if x then");
    text.setCursorPosition(2, 0);
    settleLine();
    EXPECT_EQ(held("modA"), "if x then\ndim x\n");
}
