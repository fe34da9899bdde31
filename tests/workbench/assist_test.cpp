// Completion, parameter help, quick info and the check of lines, by keys.
#include "Apps/workbench/assist/code_assist.h"
#include "Apps/workbench/assist/line_check.h"
#include "Apps/workbench/assist/tip.h"
#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/options/declared_options.h"
#include "tests/workbench/open_desktop.h"
#include <QHelpEvent>
#include <QListWidget>
#include <QScreen>
#include <QStatusBar>
#include <QToolTip>

namespace {

const char* const kAssisted = "Private Enum Fruit\r\n  Apple\r\n  Pear\r\nEnd Enum\r\n"
                              "Private Favourite As Fruit\r\n"
                              "Sub Main()\r\n    Dim Pets As Collection\r\n    \r\nEnd Sub\r\n"
                              "Function Sum(First As Long, Optional Second As Long = 2) As Long\r\nEnd Function\r\n";
constexpr int kEmptyLine = 7;

class Assist : public test::OpenDesktop {
protected:
    Assist() {
        open(test::SampleProject().module("modA", kAssisted));
        text = &code("modA");
        window().activateWindow();
        (void)QTest::qWaitForWindowActive(&window());
        text->setFocus();
        text->setCursorPosition(kEmptyLine, 4);
        const auto isKnown = [this] { return bool(workbench::assistOf(*text)); };
        (void)QTest::qWaitFor(isKnown, test::kLongestWait);
        settle(400);
    }

    void type(const char* keys) {
        QTest::keyClicks(text, keys);
        settle();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(text, key, with);
        settle();
    }
    QString line() { return text->text(kEmptyLine).trimmed(); }
    /// The names of the list, separated by blanks; "" if it is not shown.
    QString list() {
        if (!text->isListActive()) return {};
        QStringList names;
        for (auto* widget : QApplication::topLevelWidgets())
            if (auto* shown = qobject_cast<QListWidget*>(widget); shown && shown->isVisible())
                for (int i = 0; i < shown->count(); ++i) names << shown->item(i)->text();
        return names.join(' ');
    }
    /// Rests the mouse on a column of the line; returns the tool tip.
    QString hover(int column) {
        QToolTip::hideText();
        settle(400); // Qt hides it with a delay
        const auto at = long(text->positionFromLineIndex(kEmptyLine, column));
        const QPoint point(int(text->SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, at)) + 2,
                           int(text->SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL, at)) + 2);
        QHelpEvent event(QEvent::ToolTip, point, text->viewport()->mapToGlobal(point));
        QApplication::sendEvent(text->viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    /// The lines, from 0, with the mark of a syntax error.
    std::vector<int> marked() {
        std::vector<int> lines;
        for (int line = 0; line < text->lines(); ++line)
            if ((text->markersAtLine(line) & 1u << workbench::kSyntaxMark) != 0) lines.push_back(line);
        return lines;
    }
    QString tip() {
        auto* const label = text->findChild<QLabel*>("codeTip");
        return label->isVisible() ? label->text() : QString();
    }

    QsciScintilla* text = nullptr;
};

} // namespace

TEST_F(Assist, ListsMembersAfterAPointAndFiltersThemAsTheUserTypes) {
    type("pets.");
    EXPECT_EQ(list(), "Add Count Item Remove");
    type("c");
    EXPECT_EQ(list(), "Count");
    press(Qt::Key_Backspace);
    EXPECT_EQ(list(), "Add Count Item Remove");
    press(Qt::Key_Escape);
    EXPECT_EQ(list(), "");
    EXPECT_EQ(line(), "pets.");
}

TEST_F(Assist, AcceptsANameByTabEnterAndTheNextCharacter) {
    type("pets.re");
    press(Qt::Key_Tab);
    EXPECT_EQ(line(), "pets.Remove");
    type(" pets.c");
    press(Qt::Key_Tab);
    EXPECT_EQ(line(), "pets.Remove pets.Count");
    type(" + pets.i(");
    EXPECT_EQ(line(), "pets.Remove pets.Count + pets.Item(");
    type("pets.co ");
    EXPECT_EQ(line(), "pets.Remove pets.Count + pets.Item(pets.Count");
    type("- pets.co");
    press(Qt::Key_Return); // names that were accepted count as typed, and the line ends
    EXPECT_EQ(line(), "Pets.Remove Pets.Count + Pets.Item(Pets.Count - Pets.Count");
    EXPECT_EQ(text->lines(), 12);
}

TEST_F(Assist, ALongListScrollsInsteadOfBecomingShorter) {
    press(Qt::Key_J, Qt::ControlModifier);
    const auto all = list();
    EXPECT_GT(all.count(' '), 300);
    type("msgb");
    EXPECT_EQ(list(), all);
    press(Qt::Key_Backspace);
    press(Qt::Key_Tab);
    EXPECT_EQ(line(), "MsgBox");
    type(" zz");
    press(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(list(), "");
}

TEST_F(Assist, NamesOfLibrariesGetTheirDeclaredCase) {
    workbench::kAutoListMembers.store(false);
    type("msgbox left$(app.path, 1) & VBCRLF & pets.count & \"msgbox\", vbokonly ' msgbox");
    press(Qt::Key_Down);
    EXPECT_EQ(line(), "MsgBox Left$(App.Path, 1) & vbCrLf & Pets.Count & \"msgbox\", vbOKOnly ' msgbox");
    press(Qt::Key_Z, Qt::ControlModifier); // a step of its own, as for other names
    EXPECT_EQ(line(), "msgbox left$(app.path, 1) & VBCRLF & pets.count & \"msgbox\", vbokonly ' msgbox");
}

TEST_F(Assist, NamesOfLibrariesGetTheirDeclaredCaseInDeclarations) {
    workbench::kAutoListMembers.store(false);
    text->insertAt("\n", 5, 0);
    text->setCursorPosition(5, 0);
    type("Private c As collection, n(vbyes) As VBMSGBOXSTYLE");
    press(Qt::Key_Down);
    EXPECT_EQ(text->text(5).trimmed().toStdString(), "Private c As Collection, n(vbYes) As VbMsgBoxStyle");
}

TEST_F(Assist, NamesOfTheProjectComeBeforeThoseOfLibraries) {
    text->insertAt("Dim LEFT As Long\n", 6, 0);
    settle(400);
    text->setCursorPosition(kEmptyLine + 1, 4);
    type("left = len(\"\")");
    press(Qt::Key_Down);
    EXPECT_EQ(text->text(kEmptyLine + 1).trimmed(), "LEFT = Len(\"\")");
}

TEST_F(Assist, AnOptionKeepsTheNamesOfLibraries) {
    workbench::kLibraryNames.store(false);
    type("msgbox 1");
    press(Qt::Key_Down);
    EXPECT_EQ(line(), "msgbox 1");
}

TEST_F(Assist, EnterEndsTheLineIfNothingWasChosen) {
    type("pets.");
    press(Qt::Key_Return);
    EXPECT_EQ(list(), "");
    EXPECT_EQ(line(), "Pets.");
    EXPECT_EQ(text->lines(), 12);
}

TEST_F(Assist, ListsTypesAndValuesWhereTheyMustFollow) {
    type("Dim x As ");
    EXPECT_TRUE(list().split(' ').contains("Fruit"));
    type("frui");
    press(Qt::Key_Tab);
    EXPECT_EQ(line(), "Dim x As Fruit");
    type(": favourite = ");
    EXPECT_EQ(list(), "Apple Pear");
    type("2");
    EXPECT_EQ(list(), "");
}

TEST_F(Assist, CompletesAWordOnRequest) {
    type("favou");
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(line(), "Favourite");
    type(" = x");
    press(Qt::Key_Backspace);
    press(Qt::Key_J, Qt::ControlModifier);
    EXPECT_TRUE(list().split(' ').contains("MsgBox"));
}

TEST_F(Assist, ShowsTheParametersOfACall) {
    type("x = Sum(");
    EXPECT_EQ(tip(), "Sum(<b>First As Long</b>, [Second As Long = 2]) As Long");
    type("1, ");
    EXPECT_EQ(tip(), "Sum(First As Long, <b>[Second As Long = 2]</b>) As Long");
    press(Qt::Key_Home);
    EXPECT_EQ(tip(), "");
    press(Qt::Key_End);
    press(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(tip(), "");
    press(Qt::Key_Escape);
    EXPECT_EQ(tip(), "");
    EXPECT_EQ(line(), "x = Sum(1,");
}

TEST_F(Assist, ShowsHowANameIsDeclared) {
    type("Favourite");
    press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(tip(), "Private Favourite As Fruit");
    press(Qt::Key_Left);
    EXPECT_EQ(tip(), "");
}

TEST_F(Assist, ObeysTheOptions) {
    workbench::kAutoListMembers.store(false);
    workbench::kAutoQuickInfo.store(false);
    type("pets.");
    EXPECT_EQ(list(), "");
    type("add ");
    EXPECT_EQ(tip(), "");
    press(Qt::Key_Backspace);
    press(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(list(), "Add");
}

TEST_F(Assist, MarksALineWithAnErrorWhenItIsLeft) {
    const auto isMarked = [this] { return (text->markersAtLine(kEmptyLine) & 1u << workbench::kSyntaxMark) != 0; };
    type("x = (1 +");
    EXPECT_FALSE(isMarked());
    press(Qt::Key_Up);
    EXPECT_TRUE(isMarked());
    EXPECT_NE(window().statusBar()->currentMessage(), "");
    text->setCursorPosition(kEmptyLine, int(text->text(kEmptyLine).size()) - 1);
    type(" 2)");
    press(Qt::Key_Up);
    EXPECT_FALSE(isMarked());
    workbench::kAutoSyntaxCheck.store(false);
    text->setCursorPosition(kEmptyLine, int(text->text(kEmptyLine).size()) - 1);
    type(")");
    press(Qt::Key_Up);
    EXPECT_FALSE(isMarked());
}

TEST_F(Assist, KnowsNewDeclarationsAfterAPause) {
    text->append("\nPublic Function Fresh(Given As String) As Long\nEnd Function\n");
    settle(700);
    type("x = Fresh(");
    EXPECT_EQ(tip(), "Fresh(<b>Given As String</b>) As Long");
}

TEST_F(Assist, TheMouseShowsHowANameIsDeclared) {
    type("x = Favourite + Sum(1)");
    EXPECT_EQ(hover(6 + 4), "Private Favourite As Fruit");
    EXPECT_EQ(hover(4), "Dim x");
    EXPECT_EQ(hover(6), "");
    workbench::kAutoQuickInfo.store(false);
    EXPECT_EQ(hover(6 + 4), "");
}

TEST_F(Assist, NamesHaveIconsThatTheChosenRowShows) {
    type("pets.");
    type("c");
    QListWidget* shown = nullptr;
    for (auto* each : text->findChildren<QListWidget*>())
        if (each->isVisible()) shown = each;
    ASSERT_TRUE(shown);
    EXPECT_FALSE(shown->item(0)->icon().isNull());
    EXPECT_EQ(shown->palette().color(QPalette::Inactive, QPalette::Highlight),
              workbench::codeColours(workbench::currentTheme()).chosenName);
}

TEST_F(Assist, ATipIsBelowTheLineAndOnTheScreen) {
    type("x = Sum(");
    const auto* const label = text->findChild<QLabel*>("codeTip");
    const auto cursor = text->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
    const auto top = int(text->SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL, cursor));
    const auto bottom = text->viewport()->mapToGlobal(QPoint(0, top + text->textHeight(kEmptyLine))).y();
    EXPECT_EQ(label->y(), bottom);
    window().move(window().screen()->availableGeometry().right() - 400, 0);
    type("1, ");
    EXPECT_LE(label->x() + label->width() - 1, window().screen()->availableGeometry().right());
}

TEST_F(Assist, ATipIsNoWiderThanItsText) {
    workbench::Tip shown(*text);
    shown.showAt("short", 0);
    const int width = shown.width();
    shown.showAt(QString("long ").repeated(1000), 0);
    EXPECT_EQ(shown.width(), text->screen()->availableGeometry().width());
    shown.showAt("short", 0);
    EXPECT_EQ(shown.width(), width);
}

TEST_F(Assist, ATipIsHiddenWithTheFocus) {
    type("x = Sum(");
    EXPECT_NE(tip(), "");
    window().explorer().setFocus();
    settle();
    EXPECT_EQ(tip(), "");
}

TEST_F(Assist, ATextThatIsAnArgumentKeepsTheTip) {
    type("x = Sum(\"a, b");
    EXPECT_EQ(tip(), "Sum(<b>First As Long</b>, [Second As Long = 2]) As Long");
}

TEST_F(Assist, MarksTheLineOfAStatementThatHasTheError) {
    type("x = 1 + _");
    press(Qt::Key_Return);
    type(")");
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_THAT(marked(), testing::ElementsAre(kEmptyLine + 1));
    type("Dim y As");
    press(Qt::Key_Down);
    EXPECT_THAT(marked(), testing::Contains(kEmptyLine + 1));
}

TEST_F(Assist, ACodeWindowClosesWithItsListAndItsTip) {
    type("Sum pets.");
    EXPECT_NE(list(), "");
    EXPECT_NE(tip(), "");
    window().code().closeCurrent();
    settle();
    EXPECT_FALSE(window().code().current());
    EXPECT_EQ(code("modA").text(kEmptyLine).trimmed(), "Sum pets.");
}

TEST_F(Assist, AProjectIsRemovedWhileItIsReadAndNamesAreShown) {
    text->append("\nPublic Fresh As Long\n");
    settle(290); // the pause after which it is read again
    type("pets.");
    EXPECT_NE(list(), "");
    clean(project());
    bench->host().VBProjects()->Remove(project());
    settle(700);
    EXPECT_FALSE(window().code().current());
}

TEST_F(Assist, TheProgramEndsWhileAProjectIsReadAndNamesAreShown) {
    std::string large;
    for (int i = 0; i < 3000; ++i) large += "Sub Part" + std::to_string(i) + "()\r\n    x = 1\r\nEnd Sub\r\n";
    const auto path = test::SampleProject("Large").module("modLarge", large).writeTo(folder);
    bench->open(path);
    text = &code("modLarge"); // begins to read it
    text->setFocus();
    text->setCursorPosition(1, 0);
    QTest::keyClicks(text, "Sum Collection.");
    end();
}
