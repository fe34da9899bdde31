// The messages window of the desktop.
#include "tests/workbench/messages_desktop.h"
#include "tests/workbench/window_words.h"
#include <QHeaderView>
#include <QLabel>
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

TEST_F(Messages, HaveTheirWords) {
    error("first", 2, 1042);
    warning("second", 3);
    settle();
    test::expectWords(dock(), "messages", {{folder.path(), "..."}});
    error("third", 4);
    warning("fourth", 5);
    filter().setText("third");
    settle();
    test::expectWords(dock(), "messages_filtered", {{folder.path(), "..."}});
}

TEST_F(Messages, AreSortedByTheKindNumbersOrWordsOfAColumn) {
    warning("b", 10, 9);
    error("A", 9, 10);
    error("c", 100, 8);
    settle();
    const auto sorted = [this](int column) {
        list().sortByColumn(column, Qt::AscendingOrder);
        settle();
        return shown();
    };
    EXPECT_THAT(sorted(Grid::LineColumn), ElementsAre("A", "b", "c"));
    EXPECT_THAT(sorted(Grid::ErrorColumn), ElementsAre("c", "b", "A"));
    EXPECT_THAT(sorted(Grid::MessageColumn), ElementsAre("A", "b", "c"));
    EXPECT_EQ(sorted(Grid::PictureColumn).back(), "b");
}

TEST_F(Messages, HaveTheWidthsOfTheDocument) {
    const int rest = list().viewport()->width() - 20;
    EXPECT_EQ(list().columnWidth(Grid::PictureColumn), 20);
    EXPECT_NEAR(list().columnWidth(Grid::TitleColumn), rest * 0.10, 1);
    EXPECT_NEAR(list().columnWidth(Grid::LineColumn), rest * 0.07, 1);
    EXPECT_NEAR(list().columnWidth(Grid::ErrorColumn), rest * 0.07, 1);
    EXPECT_NEAR(list().columnWidth(Grid::MessageColumn), rest * 0.76, 3);
}

/// However large the font and narrow the window.
TEST_F(Messages, HaveWholeHeaders) {
    const auto expectWhole = [this] {
        for (const auto column : {Grid::TitleColumn, Grid::LineColumn, Grid::ErrorColumn}) {
            const auto text = list().model()->headerData(column, Qt::Horizontal).toString();
            auto font = QApplication::font();
            font.setBold(true);
            EXPECT_GT(list().columnWidth(column), QFontMetrics(font).horizontalAdvance(text)) << text.toStdString();
        }
    };
    expectWhole();
    error("of a number", 12345, 1042);
    settle();
    for (const auto column : {Grid::LineColumn, Grid::ErrorColumn})
        EXPECT_GE(list().columnWidth(column), list().sizeHintForIndex(at(0, column)).width()) << column;
    const auto usual = QApplication::font();
    auto large = usual;
    large.setPointSize(18);
    QApplication::setFont(large);
    settle();
    expectWhole();
    window().resize(500, 720);
    settle();
    expectWhole();
    EXPECT_GT(list().columnWidth(Grid::MessageColumn), 0);
    EXPECT_TRUE(dock().grab().save(FERNWICK_BINARY_DIR "/messages-large-font.png"));
    QApplication::setFont(usual);
}

TEST_F(Messages, HavePicturesAndABoldHeader) {
    error("e");
    warning("w");
    settle();
    for (int row : {0, 1}) EXPECT_FALSE(at(row, Grid::PictureColumn).data(Qt::DecorationRole).isNull()) << row;
    EXPECT_TRUE(list().model()->headerData(Grid::TitleColumn, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(list().model()->headerData(Grid::PictureColumn, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
}

TEST_F(Messages, HaveTheHeightsOfTheDocument) {
    error("short");
    settle();
    EXPECT_EQ(list().visualRect(at(0)).height(), document().msgGrid().rowHeight(1) / 15);
    error(QString("word ").repeated(100));
    settle();
    EXPECT_GE(list().visualRect(at(0)).height(), document().msgGrid().rowHeight(1) / 15);
    EXPECT_GT(list().visualRect(at(0)).height(), 2 * list().fontMetrics().height());
}

TEST_F(Messages, GetHigherInANarrowerWindow) {
    error(QString("word ").repeated(25));
    settle();
    const int wide = list().visualRect(at(0)).height();
    window().resize(500, 720);
    settle();
    EXPECT_GT(list().visualRect(at(0)).height(), wide);
}

TEST_F(Messages, GetHigherInALargerFont) {
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

TEST_F(Messages, TheStatusIsBesideItsCaption) {
    std::string none, failed = "FAILED - Errors (3 items) must be fixed to deploy this project.";
    messages().ProjectStatusText(none, none, failed);
    settle();
    const auto &caption = part<QLabel>("lblStatus"), &status = part<QLabel>("lblStatusText");
    EXPECT_FALSE(caption.text().isEmpty());
    EXPECT_GE(caption.width(), caption.sizeHint().width());
    EXPECT_EQ(caption.geometry().right() + 1, status.x());
    EXPECT_GE(caption.height(), caption.fontMetrics().height());
    EXPECT_EQ(caption.height(), status.height());
    EXPECT_GE(status.width(), status.fontMetrics().horizontalAdvance(status.text()));
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

TEST_F(Messages, OfNoKindAreAlwaysShown) {
    document().add("", "", 0, "neither", 0, 0, false);
    settle();
    part<QToolButton>("errors").click();
    part<QToolButton>("warnings").click();
    EXPECT_THAT(shown(), ElementsAre("neither"));
}

TEST_F(Messages, AreSortedByTheirHeadersAndBack) {
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

TEST_F(Messages, OpenTheirLineByADoubleClick) {
    error("here", 3);
    settle();
    doubleClick(at(0));
    ASSERT_TRUE(window().code().current());
    EXPECT_EQ(selectedCode(), kThirdLine);
    EXPECT_TRUE(window().updatesEnabled());
}

TEST_F(Messages, OpenTheirLineWhenFilteredAndSorted) {
    for (int line = 2; line < 6; ++line) warning(QString("odd even").mid(line % 2 * 4, 4), line);
    settle();
    filter().setText("odd");
    list().sortByColumn(Grid::LineColumn, Qt::DescendingOrder);
    EXPECT_THAT(shown(), ElementsAre("odd ", "odd "));
    doubleClick(at(0));
    EXPECT_EQ(selectedCode(), "    Beep 3");
    EXPECT_EQ(document().selectedRow(), 3);
}

TEST_F(Messages, OpenTheirLineByTheEnterKey) {
    error("here", 3);
    settle();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(selectedCode(), kThirdLine);
}

TEST_F(Messages, AddedAtTheTopKeepTheSelection) {
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

TEST_F(Messages, SelectTheFirstErrorThatTheAddInGoesTo) {
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

TEST_F(Messages, HaveAccessibleNames) {
    error("e");
    settle();
    EXPECT_EQ(list().accessibleName(), "Messages");
    EXPECT_EQ(filter().accessibleName(), "Filter messages");
    EXPECT_EQ(at(0, Grid::PictureColumn).data(Qt::AccessibleTextRole), "Error");
}

TEST_F(Messages, OfADisconnectedAddInOpenNothing) {
    error("here", 3);
    settle();
    document().disconnect();
    list().setCurrentIndex(at(0));
    QTest::keyClick(&list(), Qt::Key_Return);
    window().resize(600, 600);
    settle();
    EXPECT_FALSE(window().code().current());
    EXPECT_EQ(shown().size(), 1U);
}

/// One picture for each theme, for review.
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
