// The commands to the next and previous message.
#include "tests/workbench/messages_desktop.h"
#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

using MessagesWalk = test::MessagesDesktop;

constexpr auto kCodeOfThirdLine = "    Beep 2";

} // namespace

TEST_F(MessagesWalk, AreVisitedInACircleFromTheEditor) {
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

TEST_F(MessagesWalk, AreVisitedInTheOrderShown) {
    for (const int line : {3, 5, 4}) warning(QString("line %1").arg(line), line);
    settle();
    list().sortByColumn(Grid::LineColumn, Qt::AscendingOrder);
    filter().setText("line");
    key(Qt::Key_F6);
    key(Qt::Key_F6);
    EXPECT_THAT(selected(), ElementsAre("line 4"));
}

TEST_F(MessagesWalk, ThatStartSomethingDoNotWhenVisited) {
    error("settings", 0, 4119);
    settle();
    key(Qt::Key_F6); // a box would stay open until the test times out
    EXPECT_THAT(selected(), ElementsAre("settings"));
}

TEST_F(MessagesWalk, AreVisitedInTheLatestWindow) {
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

TEST_F(MessagesWalk, WithoutMessagesNothingIsVisited) {
    key(Qt::Key_F6);
    EXPECT_FALSE(window().code().current());
}

TEST_F(MessagesWalk, AreVisitedByTheUsersOwnKeys) {
    QSettings().setValue("messages/nextKey", "Ctrl+F8");
    start();
    warning("here", 3);
    settle();
    key(Qt::Key_F6);
    EXPECT_FALSE(window().code().current());
    key(Qt::Key_F8, Qt::ControlModifier);
    EXPECT_EQ(selectedCode(), kCodeOfThirdLine);
}
