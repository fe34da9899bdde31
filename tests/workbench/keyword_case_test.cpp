// Keywords get their proper case when the user leaves the typed line.
#include "Apps/workbench/code/declared_names.h"
#include "Apps/workbench/editing/keyword_case.h"
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

TEST_F(KeywordCase, IsCorrectedInAnIndentedLineLeftByEnter) {
    auto& text = edit("sub a()\r\n    \r\nend sub\r\n");
    text.setCursorPosition(1, 4);
    QTest::keyClicks(&text, "dim x as long");
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, "if x then");
    QTest::keyClick(&text, Qt::Key_Return);
    settleLine();
    EXPECT_EQ(held("modA"), "sub a()\n    Dim x As Long\n    If x Then\n        \n    End If\nend sub");
}

TEST_F(KeywordCase, NamesTakeTheCaseOfTheirDeclarations) {
    open(test::SampleProject()
             .module("modA", "Private mCount As Long\r\nSub Work(ByVal theSize As Long)\r\n    Dim Total As Long\r\n"
                             "\r\nEnd Sub\r\nSub Other(Optional ByRef THESIZE)\r\nEnd Sub\r\n")
             .module("modB", "Public Const Most = 5, Least = 1\r\nPrivate Hidden\r\n"
                             "Public Enum Kinds\r\n    KindOne\r\nEnd Enum\r\nFunction Twice(x)\r\nEnd Function\r\n"));
    auto& text = code("modA");
    text.setCursorPosition(3, 0);
    QTest::keyClicks(&text,
                     "total = MCOUNT + thesize + modb.TWICE(most) + KINDONE + hidden + x.least + \"total\" ' total");
    QTest::keyClick(&text, Qt::Key_Down);
    settleLine();
    EXPECT_EQ(text.text(3).trimmed().toStdString(),
              "Total = mCount + theSize + modB.Twice(Most) + KindOne + hidden + x.least + \"total\" ' total");
}

TEST_F(KeywordCase, NamesOfALongModuleAreKnownWhileTyping) {
    std::string lines = "Private mCount\r\nSub Work()\r\n\r\nEnd Sub\r\n";
    for (int i = 0; i < 2000; ++i) lines += "' a line\r\n";
    auto& text = edit(lines);
    text.setCursorPosition(2, 0);
    QTest::keyClicks(&text, "dim Total");
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, "total = MCOUNT");
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(text.text(3).trimmed().toStdString(), "Total = mCount");
    text.insertAt("Private mNew\n", 1, 0);
    QTest::qWait(400); // the pause in which the names are read again
    QTest::keyClicks(&text, "x = MNEW");
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(text.text(5).trimmed().toStdString(), "x = mNew");
}

TEST(DeclaredNames, AreReadInOneWalk) {
    const auto names = workbench::declaredNames(
        {"Option Explicit", "Private Declare Function Beep2 Lib \"a\" (ByVal X As Long) As Long",
         "Private Type Point: Left As Long: End Type", "Public Event Done(ByVal Why As Long)", "Property Get Size() _",
         "    As Long", "    Static Last, Sum(1 To Most) As Long", "End Property", "Dim After"});
    EXPECT_EQ(names.own.values().size(), 5);
    EXPECT_EQ(names.own.value("after"), "After");
    EXPECT_EQ(names.shared.value("done"), "Done");
    EXPECT_EQ(names.shared.value("beep2"), "");
    ASSERT_EQ(names.procedures.size(), 1U);
    EXPECT_EQ(names.procedures[0].first, 4);
    EXPECT_EQ(names.procedures[0].last, 7);
    EXPECT_EQ(names.procedures[0].names.value("sum"), "Sum");
    EXPECT_EQ(names.procedures[0].names.value("last"), "Last");
}
