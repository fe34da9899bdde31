// Messages with characters that a project file cannot hold, over the real host.
#include "messages_world.h"
#include "tests/support/test_host.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class StoredTexts : public testing::Test, protected test::MessagesWorld {
protected:
    StoredTexts() { messages.createToolWindow(); }
    std::string error1() { return opened->ReadProperty(test::kMessagesSection, "Error1"); }

    test::TestHost host;
    basic::Ref<vbide::VBProject> opened = host.open(test::SampleProject("Demo").handheld());
};

TEST_F(StoredTexts, HaveQuestionMarksForWhatTheCodePageLacks) {
    messages.AddProjectCompileError(opened, "\u0141\u00F3d\u017A: 10 \u20AC", "/\u0141ukasz/Modul.bas", 3, 1042);
    EXPECT_THAT(rows(), ElementsAre("|3|1042|\u0141\u00F3d\u017A: 10 \u20AC")); // the window has the true text
    EXPECT_EQ(error1(), "ERROR|/?ukasz/Modul.bas|3|?\u00F3d?: 10 \u20AC|1042");
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(StoredTexts, AreSavedAndReadBack) {
    messages.AddProjectCompileWarning(opened, "\u0417\u0434\u0440", "/p/\u4E2D.bas", 0, 0);
    opened->SaveAs(opened->FileName());
    host.ide->VBProjects()->Remove(opened);
    opened = host.openFile(host.folder / "Demo.vbp");
    messages.ReadProjectErrors(opened);
    EXPECT_THAT(rows(), ElementsAre("|||???"));
    EXPECT_EQ(messages.warningCount(), 1);
}

TEST_F(StoredTexts, KeepAFileNameWithALineBreakOnOneLine) {
    messages.AddProjectCompileError(opened, "m", "/p/a\r\nb.bas", 3, 1042);
    EXPECT_EQ(error1(), "ERROR|/p/a??b.bas|3|m|1042");
}

TEST_F(StoredTexts, OtherValuesAreRefused) {
    EXPECT_EQ(test::errorOf([&] { opened->WriteProperty("Section", "Key", "\u0141"); }), 5);
    EXPECT_EQ(test::errorOf([&] { (void)opened->ReadProperty("Section", "Key"); }), 5);
}

} // namespace
