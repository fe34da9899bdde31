// Finding and replacing, from one line of code to a whole project.
#include "Apps/workbench/code/code_finder.h"
#include "Apps/workbench/code/code_pattern.h"
#include "Apps/workbench/code/find_bar.h"
#include "Apps/workbench/window/commands.h"
#include "tests/support/errors.h"
#include "tests/workbench/open_desktop.h"
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <set>

using testing::ElementsAre;

namespace {

using Parts = std::vector<std::string>;

Parts hits(const char* what, const QString& line, workbench::FindOptions options = {}) {
    Parts parts;
    for (const auto& hit : workbench::CodePattern(what, options).hitsIn(line))
        parts.push_back(line.mid(hit.column, hit.length).toStdString());
    return parts;
}

constexpr workbench::FindOptions kAsPattern{false, false, true};

} // namespace

TEST(CodePattern, CaseCountsOnlyWithMatchCase) {
    EXPECT_EQ(hits("beep", "Beep: BEEP: beep"), (Parts{"Beep", "BEEP", "beep"}));
    EXPECT_EQ(hits("beep", "Beep: BEEP: beep", {true, false, false}), (Parts{"beep"}));
}

TEST(CodePattern, WholeWordsAreNotPartsOfLongerOnes) {
    EXPECT_EQ(hits("lbl", "lbl.Caption = lblName & m_lbl & lbl", {false, true, false}), (Parts{"lbl", "lbl"}));
    EXPECT_EQ(hits("über", "über überall", {false, true, false}), (Parts{"über"}));
}

TEST(CodePattern, SpecialCharactersOfExpressionsAreLiteral) {
    EXPECT_EQ(hits("a(1).b*", "a(1).b* + aX1Yxb"), (Parts{"a(1).b*"}));
    EXPECT_EQ(hits("[x]", "x[x]"), (Parts{"[x]"}));
}

TEST(CodePattern, PatternsFollowLike) {
    EXPECT_EQ(hits("c?t", "cat cut ct", kAsPattern), (Parts{"cat", "cut"}));
    EXPECT_EQ(hits("m#", "m1 mx m2", kAsPattern), (Parts{"m1", "m2"}));
    EXPECT_EQ(hits("Dim * As", "Dim a As X, b As Y", kAsPattern), (Parts{"Dim a As"}));
    EXPECT_EQ(hits("' *", "Beep ' why so", kAsPattern), (Parts{"' why so"}));
    EXPECT_EQ(hits("[a-c]x", "ax dx cx", kAsPattern), (Parts{"ax", "cx"}));
    EXPECT_EQ(hits("[!a-c]x", "ax dx cx", kAsPattern), (Parts{"dx"}));
    EXPECT_EQ(hits("[?]", "a?b", kAsPattern), (Parts{"?"}));
    EXPECT_EQ(hits("[^]", "a^b", kAsPattern), (Parts{"^"}));
    EXPECT_EQ(hits("a.b", "a.b axb", kAsPattern), (Parts{"a.b"}));
}

TEST(CodePattern, InvalidPatternsHaveAnError) {
    EXPECT_EQ(workbench::CodePattern("[a", kAsPattern).error(), "The pattern has a [ without a ].");
    EXPECT_EQ(workbench::CodePattern("", {}).error(), "Enter a text to find.");
    EXPECT_NE(workbench::CodePattern("[z-a]", kAsPattern).error(), "");
    EXPECT_TRUE(hits("[a", "[a", kAsPattern).empty());
    EXPECT_TRUE(hits("*", "", kAsPattern).empty());
}

namespace {

class Finding : public test::OpenDesktop {
protected:
    QWidget& bar() { return *window().findChild<QWidget*>("findBar"); }
    template <class Widget>
    Widget& in(const char* name) {
        return *bar().findChild<Widget*>(name);
    }
    void press(const char* name) { QTest::mouseClick(&in<QPushButton>(name), Qt::LeftButton); }
    void look(const QString& what, const char* scope = "Current Module") {
        menuItem("&Edit", "&Find...")->trigger();
        in<QLineEdit>("findWhat").setText(what);
        in<QComboBox>("findScope").setCurrentText(scope);
    }
    void replaceWith(const QString& with) {
        const auto what = in<QLineEdit>("findWhat").text();
        menuItem("&Edit", "R&eplace...")->trigger();
        in<QLineEdit>("findWhat").setText(what);
        in<QLineEdit>("replaceWith").setText(with);
    }
    std::string said() { return in<QLabel>("findSaid").text().toStdString(); }
    /// "modA 2:5 text", from 1.
    std::string selection() {
        auto& editor = *window().code().current();
        const auto place = editor.place();
        return place.component->Name() + " " + std::to_string(place.line + 1) + ":" + std::to_string(place.column + 1) +
               " " + editor.scintilla().selectedText().toStdString();
    }
    std::vector<std::string> next(int times) {
        std::vector<std::string> all;
        for (; times > 0; --times) {
            press("findNext");
            all.push_back(selection());
        }
        return all;
    }
    static test::SampleProject threeModules() {
        return test::SampleProject()
            .module("modA", "Dim x\r\nSub A()\r\n    x = x\r\nEnd Sub\r\nSub B()\r\n    x = 1\r\nEnd Sub\r\n")
            .module("modB", "Sub C()\r\nEnd Sub\r\n")
            .module("modC", "Dim x\r\n");
    }
};

} // namespace

TEST_F(Finding, FindsAllHitsAndReportsTheWrapAround) {
    open(threeModules());
    code("modA").setCursorPosition(2, 0);
    look("x");
    EXPECT_THAT(next(3), ElementsAre("modA 3:5 x", "modA 3:9 x", "modA 6:5 x"));
    EXPECT_EQ(said(), "");
    EXPECT_THAT(next(1), ElementsAre("modA 1:5 x"));
    EXPECT_EQ(said(), "The search continued from the beginning.");
    EXPECT_THAT(next(1), ElementsAre("modA 3:5 x"));
    EXPECT_EQ(said(), "");
}

TEST_F(Finding, Backwards) {
    open(threeModules());
    code("modA").setCursorPosition(2, 9);
    look("x");
    press("findPrevious");
    EXPECT_EQ(selection(), "modA 3:9 x");
    press("findPrevious");
    EXPECT_EQ(selection(), "modA 3:5 x");
    press("findPrevious");
    EXPECT_EQ(selection(), "modA 1:5 x");
    press("findPrevious");
    EXPECT_EQ(selection(), "modA 6:5 x");
    EXPECT_EQ(said(), "The search continued from the end.");
}

TEST_F(Finding, CanBeLimitedToTheProcedure) {
    open(threeModules());
    code("modA").setCursorPosition(2, 0);
    look("x", "Current Procedure");
    EXPECT_THAT(next(3), ElementsAre("modA 3:5 x", "modA 3:9 x", "modA 3:5 x"));
    code("modA").setCursorPosition(0, 0);
    EXPECT_THAT(next(2), ElementsAre("modA 1:5 x", "modA 1:5 x"));
}

TEST_F(Finding, InAProjectOpensWindowsOnlyForHits) {
    open(threeModules());
    code("modA").setCursorPosition(5, 4);
    look("x", "Current Project");
    EXPECT_THAT(next(1), ElementsAre("modA 6:5 x"));
    EXPECT_EQ(window().code().count(), 1);
    EXPECT_THAT(next(1), ElementsAre("modC 1:5 x"));
    EXPECT_EQ(said(), "");
    EXPECT_EQ(window().code().count(), 2); // and none for modB
    EXPECT_THAT(next(1), ElementsAre("modA 1:5 x"));
    EXPECT_EQ(said(), "The search continued from the beginning.");
    press("findPrevious");
    EXPECT_EQ(selection(), "modC 1:5 x");
    EXPECT_EQ(said(), "The search continued from the end.");
}

TEST_F(Finding, ARemovedModuleCannotBeSearchedFrom) {
    open(threeModules());
    const auto module = component("modA"), other = component("modC");
    project()->VBComponents()->Remove(module);
    clean(project());
    bench->host().VBProjects()->Remove(project());
    settle();
    for (const auto& removed : {module, other})
        for (const auto scope : {workbench::FindScope::Project, workbench::FindScope::AllProjects})
            EXPECT_NE(test::errorOf([&] { findNext(workbench::CodePattern("x", {}), scope, {removed}, false); }), 0);
}

TEST_F(Finding, ReportsWhatWasNotFound) {
    open(threeModules());
    code("modA").setCursorPosition(2, 0);
    look("nowhere");
    press("findNext");
    EXPECT_EQ(said(), "\"nowhere\" was not found in the current module.");
    look("[", "Current Module");
    in<QCheckBox>("pattern").setChecked(true);
    press("findNext");
    EXPECT_EQ(said(), "The pattern has a [ without a ].");
}

TEST_F(Finding, KeysWorkInTheEditorAndInTheBar) {
    open(threeModules());
    auto& editor = code("modA");
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    editor.setSelection(0, 4, 0, 5);
    QTest::keyClick(&editor, Qt::Key_F, Qt::ControlModifier);
    auto& what = in<QLineEdit>("findWhat");
    EXPECT_TRUE(what.hasFocus());
    EXPECT_EQ(what.text(), "x");
    QTest::keyClick(&what, Qt::Key_Return);
    EXPECT_EQ(selection(), "modA 3:5 x");
    EXPECT_TRUE(what.hasFocus());
    QTest::keyClick(&what, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "modA 1:5 x");
    QTest::keyClick(&what, Qt::Key_Escape);
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(editor.hasFocus());
    QTest::keyClick(&editor, Qt::Key_F3);
    EXPECT_EQ(selection(), "modA 3:5 x");
    QTest::keyClick(&editor, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "modA 1:5 x");
    QTest::keyClick(&editor, Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(in<QLineEdit>("replaceWith").isVisible());
}

TEST_F(Finding, IgnoresASelectionOfSeveralLines) {
    open(threeModules());
    code("modA").setSelection(0, 0, 1, 3);
    look("x");
    code("modA").setSelection(0, 0, 1, 3);
    menuItem("&Edit", "&Find...")->trigger();
    EXPECT_EQ(in<QLineEdit>("findWhat").text(), "x");
}

TEST_F(Finding, ShowsTheResultEvenIfTheBarWasHidden) {
    open(threeModules());
    auto& editor = code("modA");
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    look("x");
    QTest::keyClick(&in<QLineEdit>("findWhat"), Qt::Key_Escape);
    editor.setCursorPosition(6, 7);
    QTest::keyClick(&editor, Qt::Key_F3);
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(said(), "The search continued from the beginning.");
    EXPECT_TRUE(editor.hasFocus());
}

TEST_F(Finding, F3WithoutATextOpensTheBar) {
    open(threeModules());
    code("modA");
    menuItem("&Edit", "Find &Next")->trigger();
    EXPECT_TRUE(bar().isVisible());
}

TEST_F(Finding, OptionsAreRemembered) {
    open(threeModules());
    code("modA");
    look("x", "Current Project");
    in<QCheckBox>("wholeWord").setChecked(true);
    QTest::keyClick(&in<QLineEdit>("findWhat"), Qt::Key_Escape);
    workbench::Workbench next;
    auto& other = *next.window().findChild<QWidget*>("findBar");
    EXPECT_TRUE(other.findChild<QCheckBox*>("wholeWord")->isChecked());
    EXPECT_FALSE(other.findChild<QCheckBox*>("matchCase")->isChecked());
    EXPECT_EQ(other.findChild<QComboBox*>("findScope")->currentText(), "Current Project");
}

// ---- replacing ------------------------------------------------------------------------------------------------------

TEST_F(Finding, ReplaceReplacesTheSelectionAndFindsTheNext) {
    open(threeModules());
    code("modA").setCursorPosition(1, 0);
    look("x");
    replaceWith("count");
    press("replace"); // nothing is selected yet
    EXPECT_EQ(selection(), "modA 3:5 x");
    press("replace");
    EXPECT_EQ(selection(), "modA 3:13 x");
    EXPECT_EQ(component("modA")->CodeModule()->Lines(3, 1), "    count = x");
}

TEST_F(Finding, ReplaceAllIsOneUndoStep) {
    open(threeModules());
    auto& editor = code("modA");
    const auto before = held("modA");
    look("x");
    replaceWith("xx");
    press("replaceAll");
    EXPECT_EQ(said(), "4 replaced.");
    EXPECT_EQ(held("modA"), "Dim xx\nSub A()\n    xx = xx\nEnd Sub\nSub B()\n    xx = 1\nEnd Sub");
    EXPECT_EQ(editor.text().toStdString(), held("modA"));
    editor.undo();
    EXPECT_EQ(held("modA"), before);
    EXPECT_EQ(held("modC"), "Dim x");
}

TEST_F(Finding, ReplaceAllInTheProcedureLeavesOtherProcedures) {
    open(threeModules());
    code("modA").setCursorPosition(5, 0);
    look("x", "Current Procedure");
    replaceWith("y");
    press("replaceAll");
    EXPECT_EQ(held("modA"), "Dim x\nSub A()\n    x = x\nEnd Sub\nSub B()\n    y = 1\nEnd Sub");
}

TEST_F(Finding, ReplaceAllInTheProjectCountsTheModules) {
    open(threeModules());
    code("modA");
    look("x", "Current Project");
    replaceWith("");
    press("replaceAll");
    EXPECT_EQ(said(), "5 replaced in 2 modules.");
    EXPECT_EQ(held("modC"), "Dim ");
    EXPECT_EQ(window().code().count(), 2);
    EXPECT_EQ(window().code().current()->component()->Name(), "modA");
    code("modC").undo();
    EXPECT_EQ(held("modC"), "Dim x");
    EXPECT_FALSE(component("modB")->IsDirty());
}

TEST_F(Finding, MultiByteCharactersCountAsOne) {
    open(test::SampleProject().module("modA", "s = \"\xe4\xf6\xfc x \xe4 x\"\r\n")); // in the file's code page
    look("x");
    code("modA");
    look("x");
    replaceWith("\xc3\xbc");
    press("replaceAll");
    EXPECT_EQ(held("modA"), "s = \"\xc3\xa4\xc3\xb6\xc3\xbc \xc3\xbc \xc3\xa4 \xc3\xbc\"");
}

TEST_F(Finding, ACharacterThatTheFileCannotHoldIsReportedOnceAndNothingReplaced) {
    open(threeModules());
    const auto before = held("modA");
    code("modA");
    look("x");
    replaceWith("\xe4\xb8\xad");
    answer([](QMessageBox& box) { OpenDesktop::press(box, "OK"); });
    press("replaceAll");
    QTest::qWait(100);
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_EQ(said(), "Nothing was replaced in modA: see the message.");
    EXPECT_EQ(held("modA"), before);
    EXPECT_EQ(code("modA").text().toStdString(), before);
}

TEST_F(Finding, SharesNoLetterWithTheMenus) {
    bench->connect();
    open(threeModules());
    code("modA");
    replaceWith("y");
    menuItem("&Edit", "Find in All Pro&jects...")->trigger();
    replaceWith("y");
    std::multiset<QString> letters;
    const auto add = [&](const QString& text) { letters.insert(QKeySequence::mnemonic(text).toString()); };
    for (const auto* menu : window().menuBar()->actions())
        if (menu->text() != "&Fernwick") add(menu->text()); // shares its letter with File
    for (const auto* button : window().findChildren<QAbstractButton*>())
        if (button->isVisible()) add(button->text());
    for (const auto* label : window().findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) add(label->text());
    letters.erase(QString());
    EXPECT_GT(letters.size(), 15u);
    for (const auto& letter : letters) EXPECT_EQ(letters.count(letter), 1u) << letter.toStdString();
}

/// Pictures for review.
TEST_F(Finding, LooksLikeItsPictures) {
    open(threeModules());
    code("modA");
    look("x");
    replaceWith("count");
    in<QComboBox>("findScope").setCurrentText("Current Project");
    press("findNext");
    press("findPrevious");
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        settle();
        EXPECT_TRUE(window().grab().save(QString(FERNWICK_BINARY_DIR "/find-%1.png").arg(name)));
    }
    look("nowhere");
    press("findNext");
    settle();
    EXPECT_TRUE(window().grab().save(FERNWICK_BINARY_DIR "/find-not-found.png"));
}
