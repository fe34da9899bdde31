// The commands and keys of the code windows.
#include "Apps/workbench/code/definition.h"
#include "Apps/workbench/window/commands.h"
#include "tests/workbench/open_desktop.h"
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class EditCommands : public test::OpenDesktop {
protected:
    QsciScintilla& edit(const std::string& lines) {
        open(test::SampleProject().module("modA", lines));
        auto& editor = code("modA");
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        return editor;
    }
    void choose(const QString& item) { menuItem("&Edit", item)->trigger(); }
    static void press(QWidget& widget, int key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(&widget, Qt::Key(key), with);
    }
    /// "modA 2:5", from 1.
    std::string cursor() {
        const auto place = window().code().current()->place();
        return place.component->Name() + " " + std::to_string(place.line + 1) + ":" + std::to_string(place.column + 1);
    }
};

constexpr auto kThreeLines = "a\r\n    b\r\nc\r\n";

} // namespace

TEST_F(EditCommands, AreEnabledOnlyWithAnEditor) {
    open(test::SampleProject().module("modA"));
    EXPECT_FALSE(menuItem("&Edit", "&Undo")->isEnabled());
    EXPECT_FALSE(menuItem("&Edit", "R&eplace...")->isEnabled());
    EXPECT_FALSE(menuItem("&View", "&Definition")->isEnabled());
    code("modA");
    EXPECT_TRUE(menuItem("&Edit", "&Undo")->isEnabled());
    EXPECT_TRUE(menuItem("&View", "&Definition")->isEnabled());
    Q_EMIT window().code().tabCloseRequested(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !menuItem("&Edit", "&Undo")->isEnabled(); }));
    EXPECT_EQ(window().code().count(), 0);
}

TEST_F(EditCommands, DoNothingInOtherTabs) {
    edit(kThreeLines);
    window().code().setCurrentIndex(window().code().addTab(new QWidget, "a form"));
    settle();
    EXPECT_FALSE(menuItem("&Edit", "&Indent")->isEnabled());
    bench->host().CommandBars()->FindControl(workbench::kUndoId)->Execute();
    window().code().setCurrentIndex(0);
    settle();
    EXPECT_TRUE(menuItem("&Edit", "&Undo")->isEnabled());
}

TEST_F(EditCommands, ActOnTheCodeOnlyWhileItHasTheFocus) {
    auto& editor = edit(kThreeLines);
    window().explorer().setFocus();
    settle();
    for (const char* item :
         {"&Undo", "&Redo", "Cu&t", "&Paste", "Cut &Line", "Select &All", "&Indent", "Co&mment Block"})
        EXPECT_FALSE(menuItem("&Edit", item)->isEnabled()) << item;
    EXPECT_TRUE(menuItem("&Edit", "&Find...")->isEnabled());
    for (const int key : {Qt::Key_A, Qt::Key_X, Qt::Key_Y}) press(window().explorer(), key, Qt::ControlModifier);
    bench->host().CommandBars()->FindControl(workbench::kCutLineId)->Execute();
    EXPECT_EQ(held("modA"), "a\n    b\nc");
    editor.setFocus();
    settle();
    EXPECT_TRUE(menuItem("&Edit", "Cut &Line")->isEnabled());
}

TEST_F(EditCommands, ActOnATextFieldThatHasTheFocus) {
    edit(kThreeLines);
    choose("&Find...");
    auto& what = *window().findChild<QLineEdit*>("findWhat");
    what.setText("some text");
    what.deselect();
    settle();
    EXPECT_FALSE(menuItem("&Edit", "Cut &Line")->isEnabled());
    choose("Select &All");
    EXPECT_EQ(what.selectedText(), "some text");
    choose("Cu&t");
    EXPECT_EQ(what.text(), "");
    choose("&Undo");
    EXPECT_EQ(what.text(), "some text");
    EXPECT_EQ(held("modA"), "a\n    b\nc");
}

TEST_F(EditCommands, KeysWithCtrlAltOrMetaInsertNothing) {
    auto& editor = edit(kThreeLines);
    for (const auto with : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        for (const int key : {Qt::Key_1, Qt::Key_Equal, Qt::Key_Period, Qt::Key_Plus, Qt::Key_Slash, Qt::Key_B})
            press(editor, key, with);
    EXPECT_EQ(held("modA"), "a\n    b\nc");
    QSettings().clear(); // the zoom
    QTest::keyClicks(&editor, "x");
    EXPECT_EQ(held("modA"), "xa\n    b\nc");
}

TEST_F(EditCommands, ZoomChangesAllCodeWindowsAndIsKept) {
    open(test::SampleProject().module("modA").module("modB"));
    const auto zoomOf = [](QsciScintilla& editor) { return editor.SendScintilla(QsciScintilla::SCI_GETZOOM); };
    auto& first = code("modA");
    auto& second = code("modB");
    press(second, Qt::Key_Plus, Qt::ControlModifier);
    press(second, Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(zoomOf(first), 2);
    EXPECT_EQ(zoomOf(second), 2);
    press(second, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(zoomOf(first), 1);
    EXPECT_EQ(QSettings().value("code/zoom"), 1);
    press(second, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(zoomOf(first), 0);
    EXPECT_EQ(held("modB"), "");
}

TEST_F(EditCommands, TabIndentsTheSelectedLines) {
    auto& editor = edit(kThreeLines);
    editor.setSelection(0, 0, 2, 0);
    press(editor, Qt::Key_Tab);
    EXPECT_EQ(held("modA"), "    a\n        b\nc");
    press(editor, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(held("modA"), "a\n    b\nc");
}

TEST_F(EditCommands, IndentAndOutdentWorkFromTheMenu) {
    auto& editor = edit(kThreeLines);
    editor.setSelection(0, 0, 2, 0);
    choose("&Indent");
    EXPECT_EQ(held("modA"), "    a\n        b\nc");
    choose("&Outdent");
    EXPECT_EQ(held("modA"), "a\n    b\nc");
    editor.undo();
    EXPECT_EQ(held("modA"), "    a\n        b\nc");
    editor.undo();
    EXPECT_EQ(held("modA"), "a\n    b\nc");
}

TEST_F(EditCommands, ABlockBecomesACommentAndCodeAgain) {
    auto& editor = edit(kThreeLines);
    editor.setSelection(0, 0, 2, 1);
    choose("Co&mment Block");
    EXPECT_EQ(held("modA"), "'a\n'    b\n'c");
    choose("Uncomment Bloc&k");
    EXPECT_EQ(held("modA"), "a\n    b\nc");
    editor.undo();
    EXPECT_EQ(held("modA"), "'a\n'    b\n'c");
}

TEST_F(EditCommands, UncommentRemovesOneSignFromEachLine) {
    auto& editor = edit("''a\r\n    'b\r\nc ' d\r\n\r\n");
    editor.selectAll();
    choose("Uncomment Bloc&k");
    EXPECT_EQ(held("modA"), "'a\n    b\nc ' d\n");
}

TEST_F(EditCommands, CtrlYCutsTheLine) {
    auto& editor = edit(kThreeLines);
    editor.setCursorPosition(1, 2);
    press(editor, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(held("modA"), "a\nc");
    EXPECT_EQ(QApplication::clipboard()->text(), "    b\n");
    press(editor, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(held("modA"), "a\n    b\nc");
    press(editor, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(held("modA"), "a\nc");
}

TEST_F(EditCommands, ANewLineIsIndentedLikeTheOneAbove) {
    auto& editor = edit(kThreeLines);
    editor.setCursorPosition(1, 5);
    press(editor, Qt::Key_Return);
    QTest::keyClicks(&editor, "x");
    EXPECT_EQ(held("modA"), "a\n    b\n    x\nc");
}

TEST_F(EditCommands, CtrlUpAndDownGoFromProcedureToProcedure) {
    auto& editor = edit("Dim x\r\nSub A()\r\nEnd Sub\r\n\r\n' of B\r\nSub B()\r\nEnd Sub\r\n");
    editor.setCursorPosition(0, 3);
    press(editor, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(cursor(), "modA 2:1");
    press(editor, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(cursor(), "modA 6:1");
    press(editor, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(cursor(), "modA 6:1");
    press(editor, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(cursor(), "modA 2:1");
    press(editor, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(cursor(), "modA 2:1");
}

TEST_F(EditCommands, GoToLineMovesTheCursor) {
    auto& editor = edit(kThreeLines);
    test::whenShown<QInputDialog>([](QInputDialog& dialog) {
        dialog.setIntValue(3);
        dialog.accept();
    });
    press(editor, Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(cursor(), "modA 3:1");
}

TEST_F(EditCommands, CtrlTabGoesToTheNextWindow) {
    open(test::SampleProject().module("modA").module("modB"));
    code("modA");
    auto& editor = code("modB");
    press(editor, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(window().code().current()->component()->Name(), "modA");
    EXPECT_EQ(held("modB"), "");
}

TEST_F(EditCommands, AreInTheEditorsContextMenu) {
    auto& editor = edit(kThreeLines);
    editor.setSelection(0, 0, 2, 0);
    QStringList entries;
    QTimer::singleShot(50, [&entries] {
        auto* const menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (auto* action : menu->actions()) entries << action->text();
        EXPECT_TRUE(menu->grab().save(FERNWICK_BINARY_DIR "/editor-menu.png"));
        for (auto* action : menu->actions())
            if (action->text() == "Co&mment Block") action->trigger();
        menu->close();
    });
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {20, 20}, editor.viewport()->mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(editor.viewport(), &asked);
    EXPECT_TRUE(entries.contains("&Definition"));
    EXPECT_TRUE(entries.contains("&Paste"));
    EXPECT_EQ(held("modA"), "'a\n'    b\nc");
}

// ---- definitions ----------------------------------------------------------------------------------------------------

namespace {

class Definitions : public EditCommands {
protected:
    /// Asks for the definition of the name at this place (from 1); returns the new place and the selection.
    std::string definition(const std::string& module, int line, int column) {
        auto& editor = code(module);
        editor.setCursorPosition(line - 1, column - 1);
        menuItem("&View", "&Definition")->trigger();
        return cursor() + " " + window().code().current()->scintilla().selectedText().toStdString();
    }
    void openBoth() {
        open(test::SampleProject()
                 .module("modA",
                         "Private Type Point\r\n    x As Long\r\nEnd Type\r\n"
                         "Public Enum Sizes\r\n    Small = 1\r\n    Large\r\nEnd Enum\r\n"
                         "Public Const Most = 5, Least = 1\r\nDim mine As Long\r\n"
                         "Private Sub Hidden()\r\nEnd Sub\r\n"
                         "Public Function Twice(ByVal value As Long, _\r\n    Optional more As Long) As Long\r\n"
                         "    Dim a As Long, b As Point\r\n    Twice = value + a + more + mine + Most ' Large\r\n"
                         "End Function\r\n")
                 .module("modB", "Sub Main()\r\n    Dim a As Long\r\n    a = Twice(Large)\r\n    Hidden\r\n"
                                 "    modA.Twice Least\r\n    clsC.Draw\r\nEnd Sub\r\n")
                 .classModule("clsC", "Public Property Get Size() As Long\r\nEnd Property\r\n"
                                      "Public Property Let Size(ByVal a As Long)\r\nEnd Property\r\n"
                                      "Sub Draw()\r\n    Me.Size = Main\r\nEnd Sub\r\n"));
    }
};

} // namespace

TEST_F(Definitions, AreFoundInProcedureModuleAndOtherModules) {
    openBoth();
    EXPECT_EQ(definition("modB", 3, 6), "modB 2:9 a");
    EXPECT_EQ(definition("modB", 3, 10), "modA 12:17 Twice");
    EXPECT_EQ(definition("modB", 3, 16), "modA 6:5 Large");
    EXPECT_EQ(definition("modB", 5, 17), "modA 8:24 Least");
    EXPECT_EQ(definition("modB", 5, 12), "modA 12:17 Twice");
    EXPECT_EQ(definition("modB", 6, 11), "clsC 5:5 Draw");
    EXPECT_EQ(definition("modA", 15, 13), "modA 12:29 value");
    EXPECT_EQ(definition("modA", 15, 21), "modA 14:9 a");
    EXPECT_EQ(definition("modA", 15, 25), "modA 13:14 more");
    EXPECT_EQ(definition("modA", 15, 32), "modA 9:5 mine");
    EXPECT_EQ(definition("modA", 14, 28), "modA 1:14 Point");
    EXPECT_EQ(definition("clsC", 6, 9), "clsC 1:21 Size");
    EXPECT_EQ(definition("clsC", 6, 17), "modB 1:5 Main");
}

TEST_F(Definitions, AComponentsNameLeadsToItsCode) {
    openBoth();
    EXPECT_EQ(definition("modB", 6, 6), "clsC 1:1 ");
}

TEST_F(Definitions, PrivateNamesOfOtherModulesAreIgnored) {
    openBoth();
    EXPECT_EQ(definition("modB", 4, 6), "modB 4:6 ");
    EXPECT_EQ(window().findChild<QLabel*>("noticeText")->text(), "\"Hidden\" is not declared in this project.");
    EXPECT_TRUE(window().notice().isVisible());
    EXPECT_FALSE(window().findBar().isVisible());
}

TEST_F(Definitions, CommentsAndStringsAreIgnored) {
    const auto name = [](const char* line, int column) { return workbench::nameAt(line, column).name.toStdString(); };
    EXPECT_EQ(name("a = b ' c", 9), "");
    EXPECT_EQ(name("a = \"b c\"", 6), "");
    EXPECT_EQ(name("a = \"it's\" & b", 14), "b");
    EXPECT_EQ(name("a.b", 1), "a");
    EXPECT_EQ(name("a.b", 3), "b");
    EXPECT_EQ(workbench::nameAt("a.b", 3).object.toStdString(), "a");
    EXPECT_EQ(name("", 0), "");
    EXPECT_EQ(name("x", 99), "x");
}

TEST_F(Definitions, CtrlShiftF2GoesBackStepByStep) {
    openBoth();
    code("modB");
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    code("modB").setCursorPosition(2, 9);
    const auto key = [this](Qt::KeyboardModifiers with) {
        press(window().code().current()->scintilla(), Qt::Key_F2, with);
    };
    key(Qt::ShiftModifier);
    EXPECT_EQ(cursor(), "modA 12:17");
    window().code().current()->scintilla().setCursorPosition(14, 31);
    key(Qt::ShiftModifier);
    EXPECT_EQ(cursor(), "modA 9:5");
    key(Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(cursor(), "modA 15:32");
    key(Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(cursor(), "modB 3:10");
    key(Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(cursor(), "modB 3:10");
}

TEST_F(Definitions, PositionsInRemovedComponentsAreSkipped) {
    openBoth();
    definition("modB", 3, 10);
    project()->VBComponents()->Remove(component("modB"));
    settle();
    menuItem("&View", "Last Positio&n")->trigger();
    EXPECT_EQ(window().code().current()->component()->Name(), "modA");
}
