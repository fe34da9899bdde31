// Typed code is saved before a compile, or nothing is compiled.
#include "tests/workbench/open_desktop.h"
#include <filesystem>

using testing::HasSubstr;

namespace {

class UnsavedCode : public test::OpenDesktop {
protected:
    UnsavedCode() {
        std::filesystem::copy(FERNWICK_SOURCE_DIR "/samples/HelloWorld", folder / "HelloWorld",
                              std::filesystem::copy_options::recursive);
        openFile(folder / "HelloWorld/HelloWorld.vbp");
        before = folder.read("HelloWorld/frmHello.frm");
    }
    void type(const char* text) {
        auto& editor = code("frmHello");
        editor.setCursorPosition(0, 0);
        QTest::keyClicks(&editor, text);
        QTest::keyClick(&editor, Qt::Key_Return);
    }
    /// Presses this button at the question about saving, and OK in all other boxes.
    void compile(const char* button) {
        answer([](QMessageBox& box) { press(box, "OK"); },
               [this, button](QDialog& form) {
                   ++questions;
                   test::click(form, button);
               });
        menuItem("&Fernwick", "Compile and &Validate")->trigger();
        settle();
    }
    bool hasImage() { return std::filesystem::exists(folder / "HelloWorld/HelloWorld.0000.qlx"); }

    std::string before;
    int questions = 0;
};

} // namespace

TEST_F(UnsavedCode, YesSavesAndCompilesTypedCode) {
    compile("btnYes"); // from here on only what is typed asks
    questions = 0;
    type("' typed");
    compile("btnYes");
    EXPECT_GE(questions, 1); // a slow window may be pressed twice
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), HasSubstr("\r\n' typed\r\n"));
    EXPECT_TRUE(hasImage());
    EXPECT_FALSE(component("frmHello")->IsDirty());
}

TEST_F(UnsavedCode, TheCompileFindsErrorsInTypedCode) {
    type("Sub Broken(");
    compile("btnYes");
    EXPECT_GE(questions, 1); // a slow window may be pressed twice
    EXPECT_FALSE(hasImage());
    EXPECT_NE(code("frmHello").markersAtLine(0) & 1u << 1, 0u);
}

TEST_F(UnsavedCode, NoCompilesNothingAndChangesNothing) {
    type("' typed");
    compile("btnNo");
    EXPECT_GE(questions, 1); // a slow window may be pressed twice
    EXPECT_FALSE(hasImage());
    EXPECT_EQ(folder.read("HelloWorld/frmHello.frm"), before);
    EXPECT_EQ(component("frmHello")->CodeModule()->Lines(1, 1), "' typed");
    EXPECT_TRUE(component("frmHello")->IsDirty());
}

TEST_F(UnsavedCode, ClosingTheQuestionMeansNo) {
    type("' typed");
    answer([](QMessageBox& box) { press(box, "OK"); },
           [this](QDialog& form) {
               ++questions;
               QTest::keyClick(&form, Qt::Key_Escape);
               if (form.isVisible()) test::click(form, "btnNo"); // the form has no close box
           });
    menuItem("&Fernwick", "Compile and &Validate")->trigger();
    EXPECT_GE(questions, 1); // a slow window may be pressed twice
    EXPECT_FALSE(hasImage());
    EXPECT_EQ(folder.read("HelloWorld/frmHello.frm"), before);
    EXPECT_TRUE(component("frmHello")->IsDirty());
}
