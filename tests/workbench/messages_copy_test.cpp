// Copying messages, their help, and the context menu.
#include "tests/workbench/messages_desktop.h"
#include <QMimeData>
#include <QTextBrowser>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using MessagesCopy = test::MessagesDesktop;

} // namespace

TEST_F(MessagesCopy, AreCopiedAsText) {
    error("No such näme", 3, 1042);
    settle();
    list().setFocus();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    settle();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "File Title: modA, Line: 3, Error Number: 1042, Message: No such näme");
}

TEST_F(MessagesCopy, OfOtherScriptsAreCopiedUnchanged) {
    error("\u4e2d", 3, 1042);
    settle();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    settle();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "File Title: modA, Line: 3, Error Number: 1042, Message: \u4e2d");
}

TEST_F(MessagesCopy, AreCopiedAsLinesAndATable) {
    warning("first", 2, 7);
    warning("hidden", 3);
    warning("a < b", 4);
    settle();
    list().sortByColumn(Grid::LineColumn, Qt::DescendingOrder);
    select({0, 2});
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    settle();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "File Title: modA, Line: 4, Error Number: , Message: a < b\n"
                                                    "File Title: modA, Line: 2, Error Number: 7, Message: first\n");
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->html(),
              "<table>\n<tr><th>Name</th><th>Line #</th><th>Err #</th><th>Message/Warning/Error</th></tr>\n"
              "<tr><td>modA</td><td>4</td><td></td><td>a &lt; b</td></tr>\n"
              "<tr><td>modA</td><td>2</td><td>7</td><td>first</td></tr>\n</table>\n");
}

TEST_F(MessagesCopy, ASelectedOneIsCopiedInsteadOfTheCurrentOne) {
    for (const auto* text : {"first", "second"}) warning(text, 2);
    settle();
    list().setCurrentIndex(at(0));
    select({1});
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    settle();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith("Message: second"));
    EXPECT_THAT(selected(), ElementsAre("second"));
}

TEST_F(MessagesCopy, AreAllCopiedThatPassTheFilter) {
    for (const auto* text : {"one", "two", "three"}) warning(text, 2);
    settle();
    filter().setText("t");
    part<QAction>("copyAllMessages").trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 2);
    EXPECT_FALSE(QGuiApplication::clipboard()->text().contains("one"));
}

/// These keys are also shortcuts of the window's commands for editors.
TEST_F(MessagesCopy, UseTheirKeysInsteadOfTheEditors) {
    error("message", 3);
    component()->CodeModule()->CodePane()->Show();
    window().code().current()->scintilla().selectAll();
    settle();
    list().setFocus();
    list().setCurrentIndex(at(0));
    key(Qt::Key_C, Qt::ControlModifier, &list());
    settle();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith("Message: message"));
    warning("second", 3);
    settle();
    key(Qt::Key_A, Qt::ControlModifier, &list());
    EXPECT_EQ(selected().size(), 2U);
}

TEST_F(MessagesCopy, HaveAHelpPageByTheirNumber) {
    error("m", 3, 1300);
    settle();
    list().setCurrentIndex(at(0));
    EXPECT_THAT(boxesOf([this] { QTest::keyClick(&list(), Qt::Key_F1); }), IsEmpty());
    auto* const page = window().findChild<QTextBrowser*>();
    ASSERT_TRUE(page && page->isVisible()); // there is no browser
    EXPECT_TRUE(page->source().path().endsWith("Quinloft_Error_Codes/1300.html"));
}

TEST_F(MessagesCopy, WithoutAHelpPageSaySo) {
    error("m", 3, 999);
    settle();
    list().setCurrentIndex(at(0));
    EXPECT_THAT(boxesOf([this] { QTest::keyClick(&list(), Qt::Key_F1); }),
                ElementsAre(HasSubstr("no help page for message 999")));
    EXPECT_TRUE(window().findChild<QTextBrowser*>()->source().path().endsWith("Quinloft_Error_Codes.html"));
}

TEST_F(MessagesCopy, ReportHelpWithoutASelection) {
    error("m", 3, 1300);
    settle();
    EXPECT_THAT(boxesOf([this] { QTest::keyClick(&list(), Qt::Key_F1); }),
                ElementsAre(HasSubstr("udocCompileMsgs.msgGrid_KeyDown")));
}

TEST_F(MessagesCopy, HaveAContextMenu) {
    EXPECT_FALSE(part<QAction>("goToMessage").isEnabled());
    EXPECT_FALSE(part<QAction>("copyAllMessages").isEnabled());
    error("without a number", 3);
    settle();
    list().setCurrentIndex(at(0));
    EXPECT_TRUE(part<QAction>("goToMessage").isEnabled());
    EXPECT_TRUE(part<QAction>("copyMessages").isEnabled());
    EXPECT_FALSE(part<QAction>("helpOnMessage").isEnabled());
    EXPECT_EQ(list().contextMenuPolicy(), Qt::ActionsContextMenu);
    part<QAction>("goToMessage").trigger();
    EXPECT_EQ(selectedCode(), "    Beep 2");
}
