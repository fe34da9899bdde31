// Two panes over one text.
#include "tests/workbench/open_desktop.h"
#include <QLabel>

namespace {

class Split : public test::OpenDesktop {
protected:
    Split() {
        open(test::SampleProject().module("modA", "Sub A()\r\n    Beep\r\nEnd Sub\r\nSub B()\r\nEnd Sub\r\n"));
        editor = &OpenDesktop::editor("modA");
        window().activateWindow();
        (void)QTest::qWaitForWindowActive(&window());
    }

    workbench::CodePanes& panes() { return editor->panes(); }
    workbench::CodeInput& upper() { return *panes().all().front(); }
    void key(Qt::Key key) {
        QTest::keyClick(&editor->scintilla(), key, Qt::ControlModifier | Qt::ShiftModifier);
        settle();
    }
    void split() { key(Qt::Key_D); }

    workbench::CodeEditor* editor = nullptr;
};

} // namespace

TEST_F(Split, BothPanesEditOneText) {
    split();
    ASSERT_EQ(panes().all().size(), 2u);
    EXPECT_TRUE(menuItem("&Window", "&Split")->isChecked());
    key(Qt::Key_E);
    EXPECT_EQ(&editor->scintilla(), &upper());
    upper().setCursorPosition(1, 8);
    QTest::keyClicks(&upper(), ": if x then");
    QTest::keyClick(&upper(), Qt::Key_Return);
    settle();
    EXPECT_EQ(held("modA"), "Sub A()\n    Beep: If x Then\n        \n    End If\nEnd Sub\nSub B()\nEnd Sub");
    EXPECT_EQ(panes().main().text().toStdString(), held("modA"));
    key(Qt::Key_E);
    panes().main().undo();
    panes().main().undo();
    EXPECT_EQ(held("modA"), "Sub A()\n    Beep\nEnd Sub\nSub B()\nEnd Sub");
}

TEST_F(Split, CommandsAndStatusFollowTheActivePane) {
    split();
    panes().main().setCursorPosition(0, 0);
    key(Qt::Key_E);
    upper().setCursorPosition(4, 2);
    settle();
    EXPECT_EQ(window().findChild<QLabel*>("statusPlace")->text(), "Ln 5, Col 3");
    EXPECT_EQ(editor->place().line, 4);
    menuItem("&Edit", "Previou&s Procedure")->trigger();
    EXPECT_EQ(editor->place().line, 3);
    int line = 0, column = 0;
    panes().main().getCursorPosition(&line, &column);
    EXPECT_EQ(line, 0);
    editor->ownMarks().toggleBreakpoint(1);
    EXPECT_NE(upper().markersAtLine(1), 0u);
}

TEST_F(Split, JoiningKeepsTheCursorAndTheColours) {
    const auto colours = [this] { return panes().main().SendScintilla(QsciScintilla::SCI_GETSTYLEAT, 1); };
    settle();
    const auto before = colours();
    EXPECT_NE(before, 0);
    split();
    key(Qt::Key_E);
    upper().setCursorPosition(3, 1);
    split();
    EXPECT_EQ(panes().all().size(), 1u);
    EXPECT_EQ(editor->place().line, 3);
    EXPECT_TRUE(panes().main().hasFocus());
    EXPECT_EQ(colours(), before);
    QTest::keyClicks(&panes().main(), "x");
    EXPECT_EQ(held("modA").substr(25, 8), "Sxub B()");
}

TEST_F(Split, TheGripSplitsAndTheHandleJoins) {
    auto& grip = *editor->findChild<QWidget*>("splitGrip");
    QMouseEvent move(QEvent::MouseMove, QPointF(2, 120), grip.mapToGlobal(QPointF(2, 120)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QTest::mousePress(&grip, Qt::LeftButton);
    QApplication::sendEvent(&grip, &move);
    QTest::mouseRelease(&grip, Qt::LeftButton);
    settle();
    ASSERT_TRUE(panes().isSplit());
    EXPECT_NEAR(panes().sizes().front(), 120, 12);
    QTest::mouseDClick(panes().handle(1), Qt::LeftButton);
    settle();
    EXPECT_FALSE(panes().isSplit());
    QTest::mouseDClick(&grip, Qt::LeftButton);
    EXPECT_TRUE(panes().isSplit());
}

TEST_F(Split, ZoomAndLookAreShared) {
    split();
    window().code().zoomBy(3);
    EXPECT_EQ(upper().SendScintilla(QsciScintilla::SCI_GETZOOM), 3);
    upper().zoomTo(1);
    settle();
    EXPECT_EQ(panes().main().SendScintilla(QsciScintilla::SCI_GETZOOM), 1);
    window().code().closeAll();
    settle();
    EXPECT_EQ(window().code().count(), 0);
}

/// Pictures for review.
TEST_F(Split, LooksLikeItsPicture) {
    split();
    settle();
    EXPECT_TRUE(window().grab().save(FERNWICK_BINARY_DIR "/split.png"));
}
