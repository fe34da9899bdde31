// The user's clipboard is preserved at the start.
#include "Host/system/clipboard.h"
#include "commands_world.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class KeptClipboard : public testing::Test, protected test::CommandsWorld {
protected:
    KeptClipboard() { pasteboard.contents = text; }
    void start() {
        clips.BackupClipboardData();
        images.PlaceImageOnButton(nullptr, 109);
        clips.RestoreClipboardData();
    }
    const std::vector<std::pair<std::string, std::string>> text{
        {"text/html", "<b>x</b>"}, {"text/plain", "x"}, {"empty", ""}};
};

TEST_F(KeptClipboard, IsRestoredInAllFormatsInOrder) {
    start();
    EXPECT_EQ(pasteboard.contents, text);
}

TEST_F(KeptClipboard, IsEmptyInTheMeantime) {
    clips.BackupClipboardData();
    EXPECT_THAT(pasteboard.contents, IsEmpty());
}

TEST_F(KeptClipboard, EmptyStaysEmpty) {
    start();
    pasteboard.contents.clear();
    start(); // replaces what was saved last time
    EXPECT_THAT(pasteboard.contents, IsEmpty());
}

/// What an earlier start saved and could not restore does not come back.
TEST_F(KeptClipboard, EmptyStaysEmptyAfterAStartThatCouldNotRestore) {
    clips.BackupClipboardData();
    pasteboard.contents.clear();
    clips.BackupClipboardData();
    clips.RestoreClipboardData();
    EXPECT_THAT(pasteboard.contents, IsEmpty());
}

TEST_F(KeptClipboard, IsRestoredOnce) {
    start();
    pasteboard.contents.clear();
    clips.RestoreClipboardData();
    EXPECT_THAT(pasteboard.contents, IsEmpty());
}

TEST_F(KeptClipboard, IsNotSavedWhileBlocked) {
    pasteboard.isHeld = true;
    clips.BackupClipboardData();
    pasteboard.isHeld = false;
    images.PlaceImageOnButton(nullptr, 109);
    clips.RestoreClipboardData();
    EXPECT_THAT(pasteboard.contents, IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(KeptClipboard, FacesArePlacedWhileItIsBlocked) {
    pasteboard.isHeld = true;
    clips.BackupClipboardData();
    const auto button =
        std::make_shared<test::TracedItem>(trace, office::msoControlButton, 1, std::weak_ptr<test::TracedBar>());
    EXPECT_THAT(effectsOf([&] { images.PlaceImageOnButton(button, 109); }), ElementsAre("?: face"));
}

TEST_F(KeptClipboard, IsRestoredLaterIfBlocked) {
    clips.BackupClipboardData();
    pasteboard.isHeld = true;
    clips.RestoreClipboardData();
    EXPECT_THAT(errors.seen, IsEmpty());
    pasteboard.isHeld = false;
    clips.RestoreClipboardData();
    EXPECT_EQ(pasteboard.contents, text);
}

TEST_F(KeptClipboard, AFailingCallLosesAtMostOneFormat) {
    for (int failing = 1;; ++failing) {
        pasteboard.contents = text;
        errors.seen.clear();
        trace.calls = 0;
        trace.failing = failing;
        clips.BackupClipboardData();
        clips.RestoreClipboardData();
        trace.failing = 0;
        if (trace.calls < failing) break;
        EXPECT_LE(errors.seen.size(), 1U);
        for (const auto& seen : errors.seen) EXPECT_THAT(seen, testing::StartsWith("modClipboardManagement."));
        clips.RestoreClipboardData();
        EXPECT_GE(pasteboard.contents.size(), 2U) << failing;
    }
}

TEST(PrivateClipboard, KeepsTheOrderOfItsFormats) {
    host::Clipboard clipboard;
    clipboard.SetData("b", "1");
    clipboard.SetData("a", "2");
    clipboard.SetData("b", "3");
    EXPECT_THAT(clipboard.Formats(), ElementsAre("b", "a"));
    EXPECT_EQ(clipboard.GetData("b"), "3");
    clipboard.Clear();
    EXPECT_THAT(clipboard.Formats(), IsEmpty());
}

} // namespace
