// Enter writes the ends of blocks and keeps the indentation.
#include "Apps/workbench/options/declared_options.h"
#include "tests/workbench/open_desktop.h"

namespace {

class BlockTyping : public test::OpenDesktop {
protected:
    /// Opens a module and puts the cursor where the text has a |.
    void edit(std::string text) {
        const auto at = text.find('|');
        text.erase(at, 1);
        if (!editor_) {
            open(test::SampleProject().module("modA", ""));
            editor_ = &code("modA");
        }
        if (text.ends_with('\n')) text.pop_back();
        editor_->setText(QString::fromStdString(text));
        int line = 0, column = 0;
        editor_->lineIndexFromPosition(int(at), &line, &column);
        editor_->setCursorPosition(line, column);
    }
    void type(const char* keys) { QTest::keyClicks(editor_, keys); }
    void enter() {
        QTest::keyClick(editor_, Qt::Key_Return);
        settle(50);
    }
    /// The host's text with a | at the cursor.
    std::string now() {
        auto text = held("modA");
        EXPECT_EQ(text, editor_->text().toStdString());
        int line = 0, column = 0;
        editor_->getCursorPosition(&line, &column);
        return text.insert(std::size_t(editor_->positionFromLineIndex(line, column)), "|");
    }
    QsciScintilla* editor_ = nullptr;
};

} // namespace

TEST_F(BlockTyping, EnterWritesTheEndOfAProcedure) {
    edit("Option Explicit\n|\nSub Other()\nEnd Sub\n");
    type("private sub work");
    enter();
    EXPECT_EQ(now(), "Option Explicit\nPrivate Sub work()\n    |\nEnd Sub\nSub Other()\nEnd Sub");
    editor_->undo();
    EXPECT_EQ(now(), "Option Explicit\nprivate sub work|\nSub Other()\nEnd Sub");
    editor_->redo();
    EXPECT_EQ(held("modA"), "Option Explicit\nPrivate Sub work()\n    \nEnd Sub\nSub Other()\nEnd Sub");
}

TEST_F(BlockTyping, EnterWritesTheEndsOfInnerBlocks) {
    edit("Sub a()\n    |\nEnd Sub\n");
    type("if x then");
    enter();
    type("for i = 1 to 2");
    enter();
    EXPECT_EQ(now(),
              "Sub a()\n    If x Then\n        For i = 1 To 2\n            |\n        Next\n    End If\nEnd Sub");
}

TEST_F(BlockTyping, AnEndThatIsThereIsNotWrittenAgain) {
    edit("Sub a()|\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(), "Sub a()\n    |\nEnd Sub");
    edit("Sub a()\n    If x Then|\n        Beep\n    End If\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(), "Sub a()\n    If x Then\n        |\n        Beep\n    End If\nEnd Sub");
}

TEST_F(BlockTyping, TheEndOfAnOuterBlockIsNotTheEndOfAnInnerOne) {
    edit("Sub a()\n    If x Then\n        If y Then|\n    End If\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(), "Sub a()\n    If x Then\n        If y Then\n            |\n        End If\n    End If\nEnd Sub");
}

TEST_F(BlockTyping, TheEndOfAnInnerBlockIsNotThatOfAnOuterOne) {
    edit("Sub a()\n    If x Then\n        If y Then|\n            Beep\n        End If\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(),
              "Sub a()\n    If x Then\n        If y Then\n            |\n            Beep\n        End If\nEnd Sub");
    edit("Sub a()\n    If x Then|\n        If y Then\n            Beep\n        End If\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(),
              "Sub a()\n    If x Then\n        |\n    End If\n        If y Then\n            Beep\n        End If\n"
              "End Sub");
}

TEST_F(BlockTyping, SingleLinesStringsAndCommentsOpenNothing) {
    for (const char* line : {"If x Then Beep", "' If x Then", "s = \"For i", "For i = 1 To 2: Next", "x = 1"}) {
        edit(std::string("Sub a()\n  ") + line + "|\nEnd Sub\n");
        enter();
        EXPECT_EQ(now(), std::string("Sub a()\n  ") + line + "\n  |\nEnd Sub");
    }
    edit("' why _\nIf x Then|\n");
    enter();
    EXPECT_EQ(now(), "' why _\nIf x Then\n|");
}

TEST_F(BlockTyping, AStatementOfSeveralLinesIsIndentedLikeItsFirstLine) {
    edit("Sub a()\n  If x And _\n        y Then|\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(), "Sub a()\n  If x And _\n        y Then\n      |\n  End If\nEnd Sub");
}

TEST_F(BlockTyping, DividesALineAtTheCursor) {
    edit("Sub a()\n    Beep:|  Beep\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(), "Sub a()\n    Beep:\n    |Beep\nEnd Sub");
    edit("Sub a()\n  |  Beep\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(), "Sub a()\n  \n  |  Beep\nEnd Sub");
    edit("|Sub a()\nEnd Sub\n");
    enter();
    EXPECT_EQ(now(), "\n|Sub a()\nEnd Sub");
}

TEST_F(BlockTyping, TypedEndsGetTheLevelOfTheirOpeningLine) {
    edit("Sub a()\n    Select Case x\n        |\n    End Select\nEnd Sub\n");
    type("case 1");
    enter();
    type("beep");
    enter();
    type("case else");
    enter();
    EXPECT_EQ(
        now(),
        "Sub a()\n    Select Case x\n    Case 1\n        Beep\n    Case Else\n        |\n    End Select\nEnd Sub");
    edit("Sub a()\n  Do\n    |\nEnd Sub\n");
    type("loop until x");
    QTest::keyClick(editor_, Qt::Key_Down);
    settle(50);
    EXPECT_EQ(held("modA"), "Sub a()\n  Do\n  Loop Until x\nEnd Sub");
    editor_->undo();
    EXPECT_EQ(held("modA"), "Sub a()\n  Do\n    loop until x\nEnd Sub");
}

TEST_F(BlockTyping, AnEditedLineKeepsItsIndentation) {
    edit("Sub a()\nSelect Case x\n    Case 1|\nEnd Select\nEnd Sub\n");
    type("2");
    enter();
    EXPECT_EQ(now(), "Sub a()\nSelect Case x\n    Case 12\n        |\nEnd Select\nEnd Sub");
    type("case 3");
    enter();
    EXPECT_EQ(now(), "Sub a()\nSelect Case x\n    Case 12\n    Case 3\n        |\nEnd Select\nEnd Sub");
}

TEST_F(BlockTyping, IsTurnedOffInTheOptions) {
    workbench::kAutomaticEnds.store(false);
    edit("  Sub a|\n");
    enter();
    EXPECT_EQ(now(), "  Sub a\n      |");
    workbench::kAutoIndent.store(false);
    edit("  Sub a|\n");
    enter();
    EXPECT_EQ(now(), "  Sub a\n|");
    type("    end sub");
    enter();
    EXPECT_EQ(now(), "  Sub a\n    End Sub\n|");
}

TEST_F(BlockTyping, EnterReplacesTheSelection) {
    edit("Sub a()\n    Beep: Beep|\nEnd Sub\n");
    editor_->setSelection(1, 9, 1, 14);
    enter();
    EXPECT_EQ(now(), "Sub a()\n    Beep:\n    |\nEnd Sub");
}

TEST_F(BlockTyping, TabIndentsSelectedLines) {
    edit("|a\nb\nc\n");
    workbench::kTabWidth.store(3);
    window().optionsChanged();
    editor_->setSelection(0, 0, 1, 1);
    QTest::keyClick(editor_, Qt::Key_Tab);
    EXPECT_EQ(held("modA"), "   a\n   b\nc");
    QTest::keyClick(editor_, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(held("modA"), "a\nb\nc");
}
