// Files of an open project that another program changes.
#include "tests/workbench/open_desktop.h"
#include <QCheckBox>
#include <QListWidget>
#include <filesystem>

using test::kLongestWait;
using test::moduleText;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// Longer than the delay before a check.
constexpr int kQuiet = 700;

class OutsideChanges : public test::OpenDesktop {
protected:
    void openTwo() {
        open(test::SampleProject().module("modA", "' a\r\n").module("modB", "' b\r\n"));
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        QTest::qWait(kQuiet); // files are watched
    }
    /// Answers the next question with this button, after checking the rows that begin with these words.
    void answerOutside(const char* button, QStringList ticked = {}) {
        rows.clear();
        questions = 0;
        answer([](QMessageBox& box) { press(box, "OK"); },
               [this, button, ticked](QDialog& box) {
                   ++questions;
                   auto& list = *box.findChild<QListWidget*>("outsideFiles");
                   for (int row = 0; row < list.count(); ++row) {
                       const auto mark = list.item(row)->checkState() == Qt::Checked ? "[x] " : "[ ] ";
                       rows.push_back(mark + list.item(row)->text().toStdString());
                       for (const auto& words : ticked)
                           if (list.item(row)->text().startsWith(words)) list.item(row)->setCheckState(Qt::Checked);
                   }
                   box.grab().save(FERNWICK_BINARY_DIR "/outside-changes.png");
                   test::click(box, button);
               });
    }
    void waitForQuestion() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return questions > 0; }, kLongestWait));
        settle();
    }
    void type(const std::string& module, const char* text) {
        auto& editor = code(module);
        editor.setCursorPosition(0, 0);
        QTest::keyClicks(&editor, text);
    }
    void save() { menuItem("&File", "Sa&ve Project")->trigger(); }

    int questions = 0;
    /// The rows of the question.
    std::vector<std::string> rows;
};

} // namespace

TEST_F(OutsideChanges, AnUneditedFileIsReloaded) {
    openTwo();
    auto& editor = code("modA");
    answerOutside("reload");
    folder.write("modA.bas", moduleText("modA", "' theirs\r\n"));
    waitForQuestion();
    EXPECT_THAT(rows, ElementsAre("[x] modA (modA.bas)"));
    EXPECT_EQ(editor.text().toStdString(), "' theirs");
    EXPECT_FALSE(component("modA")->IsDirty());
}

TEST_F(OutsideChanges, AFileThatWasReplacedIsNoticedAgainAndAgain) {
    openTwo();
    for (const std::string text : {"' one\r\n", "' two\r\n", "' three\r\n"}) {
        answerOutside("reload");
        folder.write("new.bas", moduleText("modA", text));
        std::filesystem::rename(folder / "new.bas", folder / "modA.bas");
        waitForQuestion();
        EXPECT_EQ(held("modA") + "\r\n", text);
        QTest::qWait(kQuiet);
    }
}

TEST_F(OutsideChanges, CursorAndScrollFollowTheirLines) {
    std::string lines;
    for (int i = 0; i < 200; ++i) lines += "' line\r\n";
    open(test::SampleProject().module("modA", lines));
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::qWait(kQuiet);
    auto& editor = code("modA");
    editor.setCursorPosition(120, 3);
    editor.setFirstVisibleLine(110);
    answerOutside("reload");
    folder.write("modA.bas", moduleText("modA", "' first\r\n" + lines));
    waitForQuestion();
    EXPECT_EQ(editor.lines(), 201);
    int line = 0, column = 0;
    editor.getCursorPosition(&line, &column);
    EXPECT_EQ(std::pair(line, column), std::pair(121, 3));
    EXPECT_EQ(editor.firstVisibleLine(), 111);
}

TEST_F(OutsideChanges, OneQuestionListsAllFiles) {
    openTwo();
    type("modB", "mine ");
    answerOutside("reload");
    folder.write("modA.bas", moduleText("modA", "' theirs\r\n"));
    folder.write("modB.bas", moduleText("modB", "' theirs\r\n"));
    waitForQuestion();
    EXPECT_EQ(questions, 1);
    EXPECT_THAT(rows, ElementsAre("[x] modA (modA.bas)", "[ ] modB (modB.bas) - reloading loses your unsaved changes"));
    EXPECT_EQ(held("modA"), "' theirs");
    EXPECT_EQ(held("modB"), "mine ' b");
}

TEST_F(OutsideChanges, TheUserMayReloadAnEditedFile) {
    openTwo();
    type("modA", "mine ");
    answerOutside("reload", {"modA"});
    folder.write("modA.bas", moduleText("modA", "' theirs\r\n"));
    waitForQuestion();
    EXPECT_EQ(held("modA"), "' theirs");
    EXPECT_FALSE(component("modA")->IsDirty());
}

TEST_F(OutsideChanges, KeptTextIsNotSavedWithoutAQuestion) {
    openTwo();
    type("modA", "mine ");
    answerOutside("keep");
    folder.write("modA.bas", moduleText("modA", "' theirs\r\n"));
    waitForQuestion();
    answerWith("Don't Save");
    save();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("modA.bas was changed by another program")));
    EXPECT_EQ(folder.read("modA.bas"), moduleText("modA", "' theirs\r\n"));
    EXPECT_TRUE(component("modA")->IsDirty());
    answerWith("Overwrite");
    save();
    EXPECT_EQ(folder.read("modA.bas"), moduleText("modA", "mine ' a\r\n"));
    EXPECT_FALSE(component("modA")->IsDirty());
}

/// A compile reads files, so it would otherwise compile something other than the editor shows.
TEST_F(OutsideChanges, KeptTextCountsAsUnsaved) {
    openTwo();
    answerOutside("keep");
    folder.write("modA.bas", moduleText("modA", "' theirs\r\n"));
    waitForQuestion();
    EXPECT_EQ(held("modA"), "' a");
    EXPECT_TRUE(component("modA")->IsDirty());
    QTest::qWait(kQuiet);
    EXPECT_EQ(questions, 1); // once for each change
    folder.write("modA.bas", moduleText("modA", "' theirs again\r\n"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return questions == 2; }, kLongestWait));
}

TEST_F(OutsideChanges, ARemovedFileIsReportedAndWrittenAgainBySaving) {
    openTwo();
    answerOutside("keep");
    std::filesystem::remove(folder / "modA.bas");
    waitForQuestion();
    EXPECT_THAT(rows, ElementsAre("[ ] modA (modA.bas) - removed"));
    EXPECT_TRUE(component("modA")->IsDirty());
    save();
    EXPECT_EQ(folder.read("modA.bas"), moduleText("modA", "' a\r\n"));
}

TEST_F(OutsideChanges, AProjectFileIsOpenedAgainWithItsWindows) {
    openTwo();
    code("modB").setCursorPosition(0, 2);
    answerOutside("reload");
    folder.write("modNew.bas", moduleText("modNew", "' new\r\n"));
    folder.write("modA.bas", moduleText("modA", "' theirs\r\n"));
    folder.write("Hello.vbp", test::SampleProject().module("modA").module("modB").module("modNew").text());
    waitForQuestion();
    EXPECT_THAT(rows, ElementsAre("[x] Hello.vbp - reloading opens the project again", "[x] modA (modA.bas)"));
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(held("modA"), "' theirs");
    EXPECT_EQ(project()->VBComponents()->Count(), 3);
    EXPECT_EQ(window().code().count(), 1);
    EXPECT_EQ(window().code().current()->place().column, 2);
}

TEST_F(OutsideChanges, TheSameBytesAreNotAChange) {
    openTwo();
    answerOutside("keep");
    folder.write("modA.bas", moduleText("modA", "' a\r\n"));
    type("modB", "x");
    folder.write("modB.bas", moduleText("modB", "x' b\r\n")); // as the editor has it
    QTest::qWait(kQuiet);
    EXPECT_EQ(questions, 0);
}

TEST_F(OutsideChanges, OwnSavesAndBuildsAskNothing) {
    std::filesystem::copy(FERNWICK_SOURCE_DIR "/samples/HelloWorld", folder / "HelloWorld",
                          std::filesystem::copy_options::recursive);
    openFile(folder / "HelloWorld/HelloWorld.vbp");
    window().activateWindow();
    QTest::qWait(kQuiet);
    QTest::keyClicks(&code("frmHello"), "' x");
    answer([](QMessageBox& box) { press(box, "OK"); },
           [this](QDialog& form) {
               if (form.objectName() == "outsideBox")
                   ++questions, form.reject();
               else
                   test::click(form, "btnYes");
           });
    menuItem("&Fernwick", "Compile and &Validate")->trigger();
    QTest::qWait(kQuiet);
    type("frmHello", "' y");
    save();
    QTest::qWait(kQuiet);
    EXPECT_EQ(questions, 0);
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), HasSubstr("' y' x"));
}

TEST_F(OutsideChanges, AFailedReloadIsReportedAndTheTextKept) {
    openTwo();
    answerOutside("reload");
    folder.write("modA.bas", moduleText("modB", "' another name\r\n"));
    waitForQuestion();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !boxes.empty(); }, kLongestWait));
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("modA.bas could not be reloaded")));
    EXPECT_EQ(held("modA"), "' a");
}
