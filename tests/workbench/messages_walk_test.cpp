// From one message to the next.
#include "tests/workbench/messages_desktop.h"
#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

using MessagesWalk = test::MessagesDesktop;

constexpr auto kCodeOfThirdLine = "    Beep 2";

} // namespace

TEST_F(MessagesWalk, AreWalkedThroughAllAroundFromTheEditor) {
    for (const int line : {3, 5, 4}) warning(QString("line %1").arg(line), line);
    component()->CodeModule()->CodePane()->Show();
    settle();
    std::vector<std::string> seen;
    for (int i = 0; i < 4; ++i) {
        key(Qt::Key_F6);
        seen.push_back(selectedCode());
    }
    EXPECT_THAT(seen, ElementsAre("    Beep 2", "    Beep 4", "    Beep 3", "    Beep 2"));
    key(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(selectedCode(), "    Beep 3");
}

TEST_F(MessagesWalk, AreWalkedThroughAsTheyAreShown) {
    for (const int line : {3, 5, 4}) warning(QString("line %1").arg(line), line);
    settle();
    list().sortByColumn(Grid::LineColumn, Qt::AscendingOrder);
    filter().setText("line");
    key(Qt::Key_F6);
    key(Qt::Key_F6);
    EXPECT_THAT(selected(), ElementsAre("line 4"));
}

TEST_F(MessagesWalk, ThatStartSomethingDoNotWhenTheyAreWalkedThrough) {
    error("settings", 0, 4119);
    settle();
    key(Qt::Key_F6); // a box would stand until the test is ended
    EXPECT_THAT(selected(), ElementsAre("settings"));
}

TEST_F(MessagesWalk, AreWalkedThroughInTheLatestWindow) {
    warning("of the window before", 2);
    settle();
    messages().killToolWindow();
    messages().showToolWindow();
    warning("here", 3);
    settle();
    key(Qt::Key_F6);
    EXPECT_EQ(selectedCode(), kCodeOfThirdLine);
    EXPECT_THAT(shown(), ElementsAre("here"));
}

TEST_F(MessagesWalk, WithNoneAWalkGoesNowhere) {
    key(Qt::Key_F6);
    EXPECT_FALSE(window().code().current());
}

TEST_F(MessagesWalk, AreWalkedThroughByTheUsersOwnKeys) {
    QSettings().setValue("messages/nextKey", "Ctrl+F8");
    start();
    warning("here", 3);
    settle();
    key(Qt::Key_F6);
    EXPECT_FALSE(window().code().current());
    key(Qt::Key_F8, Qt::ControlModifier);
    EXPECT_EQ(selectedCode(), kCodeOfThirdLine);
}
