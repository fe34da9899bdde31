// The messages window at the desktop: what the user sees of the messages and does with them.
#include "tests/workbench/messages_desktop.h"
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Messages = test::MessagesDesktop;

constexpr auto kThirdLine = "    Beep 2";

} // namespace

TEST_F(Messages, ShowTheDocumentsRows) {
    warning("late", 3);
    error("second", 2, 1042);
    settle();
    EXPECT_THAT(shown(), ElementsAre("second", "late"));
    EXPECT_EQ(cell(0, Grid::TitleColumn), "modA");
    EXPECT_EQ(cell(0, Grid::LineColumn), "2");
    EXPECT_EQ(cell(0, Grid::ErrorColumn), "1042");
    EXPECT_TRUE(list().isColumnHidden(Grid::FileNameColumn));
    EXPECT_EQ(part<QLabel>("lblStatus").text(), "Compile Status:");
}

TEST_F(Messages, HaveTheWidthsOfTheDocument) {
    const int rest = list().viewport()->width() - 20;
    EXPECT_EQ(list().columnWidth(Grid::PictureColumn), 20);
    EXPECT_NEAR(list().columnWidth(Grid::TitleColumn), rest * 0.10, 1);
    EXPECT_NEAR(list().columnWidth(Grid::LineColumn), rest * 0.07, 1);
    EXPECT_NEAR(list().columnWidth(Grid::ErrorColumn), rest * 0.07, 1);
    EXPECT_NEAR(list().columnWidth(Grid::MessageColumn), rest * 0.76, 3);
}

TEST_F(Messages, HaveTheirPicturesAndABoldHeader) {
    error("e");
    warning("w");
    settle();
    for (int row : {0, 1}) EXPECT_FALSE(at(row, Grid::PictureColumn).data(Qt::DecorationRole).isNull()) << row;
    EXPECT_TRUE(list().model()->headerData(Grid::TitleColumn, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(list().model()->headerData(Grid::PictureColumn, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
}

TEST_F(Messages, AreAsHighAsTheDocumentSays) {
    error("short");
    settle();
    EXPECT_EQ(list().visualRect(at(0)).height(), document().msgGrid().rowHeight(1) / 15);
    error(QString("word ").repeated(100));
    settle();
    EXPECT_GE(list().visualRect(at(0)).height(), document().msgGrid().rowHeight(1) / 15);
    EXPECT_GT(list().visualRect(at(0)).height(), 2 * list().fontMetrics().height());
}

TEST_F(Messages, GrowInANarrowerWindow) {
    error(QString("word ").repeated(25));
    settle();
    const int wide = list().visualRect(at(0)).height();
    window().resize(500, 720);
    settle();
    EXPECT_GT(list().visualRect(at(0)).height(), wide);
}

TEST_F(Messages, GrowInALargerFont) {
    error("short");
    settle();
    auto font = list().font();
    font.setPointSize(3 * font.pointSize());
    list().setFont(font);
    settle();
    EXPECT_GE(document().msgGrid().rowHeight(1), list().fontMetrics().height() * 15);
    EXPECT_GE(list().visualRect(at(0)).height(), list().fontMetrics().height());
}

TEST_F(Messages, WithALineBreakShowTwoLines) {
    error("first\r\nsecond");
    settle();
    EXPECT_GE(list().visualRect(at(0)).height(), 2 * list().fontMetrics().height());
}

TEST_F(Messages, AreCountedByKind) {
    error("a");
    warning("b");
    warning("c");
    settle();
    EXPECT_EQ(part<QToolButton>("errors").text(), "1 Error");
    EXPECT_EQ(part<QToolButton>("warnings").text(), "2 Warnings");
    document().clearMessages();
    settle();
    EXPECT_EQ(part<QToolButton>("errors").text(), "0 Errors");
    EXPECT_TRUE(shown().empty());
}

TEST_F(Messages, OfAKindCanBeHidden) {
    error("a");
    warning("b");
    settle();
    part<QToolButton>("errors").click();
    EXPECT_THAT(shown(), ElementsAre("b"));
    EXPECT_EQ(part<QLabel>("messagesShown").text(), "1 of 2 shown");
    warning("c");
    error("d");
    settle();
    EXPECT_THAT(shown(), ElementsAre("b", "c"));
    part<QToolButton>("errors").click();
    EXPECT_THAT(shown(), ElementsAre("d", "a", "b", "c"));
    EXPECT_EQ(part<QLabel>("messagesShown").text(), "");
}

TEST_F(Messages, AreFilteredByTheirTexts) {
    error("No such name", 2, 1042);
    error("Expected: Then", 3, 1205);
    settle();
    QTest::keyClicks(&filter(), "THEN");
    EXPECT_THAT(shown(), ElementsAre("Expected: Then"));
    filter().setText("1042");
    EXPECT_THAT(shown(), ElementsAre("No such name"));
    filter().setText("moda.BAS");
    EXPECT_EQ(shown().size(), 2U);
    filter().setText("nowhere");
    EXPECT_TRUE(shown().empty());
}

TEST_F(Messages, OfNoKindAlwaysShow) {
    document().add("", "", 0, "neither", 0, 0, false);
    settle();
    part<QToolButton>("errors").click();
    part<QToolButton>("warnings").click();
    EXPECT_THAT(shown(), ElementsAre("neither"));
}

TEST_F(Messages, AreSortedByTheirHeadersAndPutBack) {
    for (const int line : {3, 20, 2}) warning(QString("line %1").arg(line), line);
    settle();
    const auto click = [this] {
        const auto* header = list().header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(Grid::LineColumn) + 5, header->height() / 2});
    };
    click();
    EXPECT_THAT(shown(), ElementsAre("line 2", "line 3", "line 20"));
    warning("line 10", 10);
    settle();
    EXPECT_THAT(shown(), ElementsAre("line 2", "line 3", "line 10", "line 20"));
    click();
    EXPECT_EQ(shown().front(), "line 20");
    click();
    EXPECT_THAT(shown(), ElementsAre("line 3", "line 20", "line 2", "line 10"));
}

TEST_F(Messages, LeadToTheirLineByADoubleClick) {
    error("here", 3);
    settle();
    doubleClick(at(0));
    ASSERT_TRUE(window().code().current());
    EXPECT_EQ(selectedCode(), kThirdLine);
    EXPECT_TRUE(window().updatesEnabled());
}

TEST_F(Messages, LeadToTheirLineWhenTheyAreFilteredAndSorted) {
    for (int line = 2; line < 6; ++line) warning(QString("odd even").mid(line % 2 * 4, 4), line);
    settle();
    filter().setText("odd");
    list().sortByColumn(Grid::LineColumn, Qt::DescendingOrder);
    EXPECT_THAT(shown(), ElementsAre("odd ", "odd "));
    doubleClick(at(0));
    EXPECT_EQ(selectedCode(), "    Beep 3");
    EXPECT_EQ(document().selectedRow(), 3);
}

TEST_F(Messages, LeadToTheirLineByTheEnterKey) {
    error("here", 3);
    settle();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(selectedCode(), kThirdLine);
}

TEST_F(Messages, ThatCameAboveLeaveTheChosenOneChosen) {
    error("old", 3);
    settle();
    list().setCurrentIndex(at(0));
    error("new", 4);
    EXPECT_EQ(list().currentIndex().row(), 0); // not drawn yet
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(selectedCode(), kThirdLine);
    settle();
    EXPECT_EQ(list().currentIndex().siblingAtColumn(Grid::MessageColumn).data(), "old");
    EXPECT_THAT(selected(), ElementsAre("old"));
}

TEST_F(Messages, ShowTheFirstErrorThatTheAddInGoesTo) {
    warning("project", 0);
    warning("line", 3);
    document().gotoFirstError();
    EXPECT_THAT(selected(), ElementsAre("line"));
    EXPECT_EQ(selectedCode(), kThirdLine);
}

TEST_F(Messages, HaveTheirWholeTextInTheToolTip) {
    error("a <b> & c", 3);
    settle();
    const auto tip = at(0, Grid::TitleColumn).data(Qt::ToolTipRole).toString().toStdString();
    EXPECT_THAT(tip, HasSubstr("a &lt;b&gt; &amp; c"));
    EXPECT_THAT(tip, HasSubstr("modA.bas, line 3"));
}

TEST_F(Messages, AreReachedByKeys) {
    warning("first", 2);
    warning("second", 3);
    settle();
    filter().setFocus();
    QTest::keyClicks(&filter(), "second");
    QTest::keyClick(&filter(), Qt::Key_Down);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_THAT(selected(), ElementsAre("second"));
    filter().setFocus();
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_EQ(shown().size(), 2U);
    part<QToolButton>("errors").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(filter().hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(Messages, HaveNamesForThoseWhoHearThem) {
    error("e");
    settle();
    EXPECT_EQ(list().accessibleName(), "Messages");
    EXPECT_EQ(filter().accessibleName(), "Filter messages");
    EXPECT_EQ(at(0, Grid::PictureColumn).data(Qt::AccessibleTextRole), "Error");
}

TEST_F(Messages, OfAnAddInThatWentLeadNowhere) {
    error("here", 3);
    settle();
    document().letGo();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_Return);
    window().resize(600, 600);
    settle();
    EXPECT_FALSE(window().code().current());
    EXPECT_EQ(shown().size(), 1U);
}

// ---- from one to the next ----------------------------------------------------------------------------------------------

TEST_F(Messages, AreWalkedThroughAllAroundFromTheEditor) {
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

TEST_F(Messages, AreWalkedThroughAsTheyAreShown) {
    for (const int line : {3, 5, 4}) warning(QString("line %1").arg(line), line);
    settle();
    list().sortByColumn(Grid::LineColumn, Qt::AscendingOrder);
    filter().setText("line");
    key(Qt::Key_F6);
    key(Qt::Key_F6);
    EXPECT_THAT(selected(), ElementsAre("line 4"));
}

TEST_F(Messages, ThatStartSomethingDoNotWhenTheyAreWalkedThrough) {
    error("settings", 0, 4119);
    settle();
    key(Qt::Key_F6); // a box would stand until the test is ended
    EXPECT_THAT(selected(), ElementsAre("settings"));
}

TEST_F(Messages, AreWalkedThroughWhenTheAddInIsConnectedAnew) {
    const auto addIn = bench->host().Addins()->Item("QLVBAddIn.Connect");
    addIn->Connect(false);
    addIn->Connect(true);
    settle();
    warning("here", 3);
    settle();
    key(Qt::Key_F6);
    EXPECT_EQ(selectedCode(), kThirdLine);
}

TEST_F(Messages, WithNoneAWalkGoesNowhere) {
    key(Qt::Key_F6);
    EXPECT_FALSE(window().code().current());
}

TEST_F(Messages, AreWalkedThroughByTheUsersOwnKeys) {
    QSettings().setValue("messages/nextKey", "Ctrl+F8");
    start();
    warning("here", 3);
    settle();
    key(Qt::Key_F6);
    EXPECT_FALSE(window().code().current());
    key(Qt::Key_F8, Qt::ControlModifier);
    EXPECT_EQ(selectedCode(), kThirdLine);
}

// ---- copies and help ---------------------------------------------------------------------------------------------------

TEST_F(Messages, AreCopiedOneAsItsText) {
    error("No such näme", 3, 1042);
    settle();
    list().setFocus();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    settle();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "File Title: modA, Line: 3, Error Number: 1042, Message: No such näme");
}

TEST_F(Messages, OfOtherScriptsAreCopiedWhole) {
    error("\u4e2d", 3, 1042);
    settle();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    settle();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "File Title: modA, Line: 3, Error Number: 1042, Message: \u4e2d");
}

TEST_F(Messages, AreCopiedSeveralAsLinesAndATable) {
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

TEST_F(Messages, AreCopiedAllThatShow) {
    for (const auto* text : {"one", "two", "three"}) warning(text, 2);
    settle();
    filter().setText("t");
    part<QAction>("copyAllMessages").trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 2);
    EXPECT_FALSE(QGuiApplication::clipboard()->text().contains("one"));
}

/// The window's own commands have these keys for its editors.
TEST_F(Messages, KeepTheirKeysFromTheEditorsCommands) {
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

TEST_F(Messages, HaveHelpByTheirNumber) {
    error("m", 3, 1300);
    settle();
    list().setCurrentIndex(at(0));
    EXPECT_THAT(boxesOf([this] { QTest::keyClick(&list(), Qt::Key_F1); }),
                ElementsAre(HasSubstr("Quinloft_Error_Codes/1300.html")));
}

TEST_F(Messages, WithoutAHelpPageSaySo) {
    error("m", 3, 999);
    settle();
    list().setCurrentIndex(at(0));
    EXPECT_THAT(boxesOf([this] { QTest::keyClick(&list(), Qt::Key_F1); }),
                ElementsAre(HasSubstr("no help page on the message 999"), HasSubstr("Quinloft_Error_Codes.html")));
}

TEST_F(Messages, WithNoneChosenHelpIsReported) {
    error("m", 3, 1300);
    settle();
    EXPECT_THAT(boxesOf([this] { QTest::keyClick(&list(), Qt::Key_F1); }),
                ElementsAre(HasSubstr("udocCompileMsgs.msgGrid_KeyDown")));
}

TEST_F(Messages, OfferWhatCanBeDone) {
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
    EXPECT_EQ(selectedCode(), kThirdLine);
}

// ---- many --------------------------------------------------------------------------------------------------------------

namespace {

struct CountedFont : fernwick::DeviceContext {
    mutable int measured = 0;
    fernwick::TextExtent GetTextExtentPoint32(const std::string& text) const noexcept override {
        ++measured;
        return {int(text.size()) * 7, 15};
    }
};

struct PaintCount : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

constexpr int kMany = 10'000;

} // namespace

TEST_F(Messages, TenThousandAreMeasuredOnceAndDrawnAtOnce) {
    CountedFont font;
    PaintCount paints;
    document().drawWith(&font);
    list().viewport()->installEventFilter(&paints);
    font.measured = 0;
    for (int i = 0; i < kMany; ++i) document().add("f", "modA", i, "message", fernwick::ERROR_MSG, i, i % 2 == 0);
    settle();
    EXPECT_EQ(list().model()->rowCount(), kMany);
    EXPECT_LE(paints.count, 3);
    window().resize(700, 600);
    settle();
    EXPECT_LE(font.measured, kMany + 10); // the status line's label
    EXPECT_EQ(cell(0, Grid::LineColumn), QString::number(kMany - 2));
    document().drawWith(nullptr);
}

/// A build that lets events in at each of its messages.
TEST_F(Messages, OneByOneAreDrawnNoFasterThanPictures) {
    int draws = 0;
    view().drawn = [&draws] { ++draws; };
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 500; ++i) {
        document().add("f", "modA", i, "message", fernwick::WARNING_MSG, i, false);
        QCoreApplication::processEvents();
    }
    EXPECT_LE(draws, time.elapsed() / 16 + 2);
}

/// One picture for each theme, to be looked at.
TEST_F(Messages, LookLikeTheirPictures) {
    fillForPicture();
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        settle();
        const auto picture = dock().grab().toImage();
        EXPECT_TRUE(picture.save(QString(FERNWICK_BINARY_DIR "/workbench-messages-%1.png").arg(name)));
        EXPECT_EQ(picture.pixelColor(2, picture.height() - 2).lightness() < 128, theme == workbench::Theme::Dark);
    }
}
