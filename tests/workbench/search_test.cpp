// Searching all projects, with a list of results.
#include "Apps/workbench/search/result_list.h"
#include "tests/workbench/open_desktop.h"
#include "tests/workbench/window_words.h"
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <fmt/format.h>

using testing::ElementsAre;

namespace {

class Searching : public test::OpenDesktop {
protected:
    void openTwo() {
        open(test::SampleProject("One")
                 .module("modA", "Dim x\r\nSub A()\r\n    x = x + 1\r\nEnd Sub\r\n")
                 .module("modB", "Dim y\r\n"));
        open(test::SampleProject("Two").module("modC", "Sub C()\r\n    ' X\r\nEnd Sub\r\n"));
    }
    void search(const QString& what) {
        menuItem("&Edit", "Find in All Pro&jects...")->trigger();
        window().findBar().findChild<QLineEdit*>("findWhat")->setText(what);
        QTest::keyClick(window().findBar().findChild<QLineEdit*>("findWhat"), Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !window().results().isSearching(); }));
    }
    QTreeWidget& list() { return *window().results().findChild<QTreeWidget*>("searchResults"); }
    std::vector<std::string> results() {
        std::vector<std::string> rows;
        for (int row = 0; row < list().topLevelItemCount(); ++row) {
            const auto& item = *list().topLevelItem(row);
            rows.push_back((item.text(0) + ":" + item.text(1) + ": " + item.text(2)).toStdString());
        }
        return rows;
    }
    std::string summary() { return window().results().findChild<QLabel*>("searchSummary")->text().toStdString(); }
    void settleRest() { settle(450); }
};

} // namespace

TEST_F(Searching, ListsTheLinesOfAllProjects) {
    openTwo();
    search("x");
    EXPECT_THAT(results(), ElementsAre("One / modA:1: Dim x", "One / modA:3: x = x + 1", "Two / modC:2: ' X"));
    EXPECT_EQ(summary(), "\"x\": 3 lines in 2 modules");
    EXPECT_TRUE(window().results().isVisible());
    EXPECT_TRUE(list().hasFocus() || !window().isActiveWindow());
    search("100%2");
    EXPECT_EQ(summary(), "\"100%2\": 0 lines in 0 modules");
}

TEST_F(Searching, TheListHasItsWords) {
    openTwo();
    search("x");
    test::expectWords(window().results(), "search_results");
}

TEST_F(Searching, EnterAndDoubleClickLeadToTheLine) {
    openTwo();
    search("x");
    list().setCurrentItem(list().topLevelItem(1));
    QTest::keyClick(&list(), Qt::Key_Return);
    const auto place = window().code().current()->place();
    EXPECT_EQ(place.component->Name(), "modA");
    EXPECT_EQ(std::pair(place.line, place.column), std::pair(2, 4));
    EXPECT_EQ(window().code().current()->selectedPart(), "x");
    Q_EMIT list().itemDoubleClicked(list().topLevelItem(2), 0);
    EXPECT_EQ(window().code().current()->component()->Name(), "modC");
}

TEST_F(Searching, MatchesFollowEditsOrAreOutdated) {
    openTwo();
    search("x");
    const auto module = window().code().editorOf(nullptr);
    EXPECT_FALSE(module);
    const auto modA = bench->host().VBProjects()->Item(1)->VBComponents()->Item("modA");
    modA->CodeModule()->InsertLines(1, "Option Explicit");
    settleRest();
    EXPECT_THAT(results(), ElementsAre("One / modA:2: Dim x", "One / modA:4: x = x + 1", "Two / modC:2: ' X"));
    modA->CodeModule()->ReplaceLine(4, "y = 1");
    settleRest();
    EXPECT_TRUE(list().topLevelItem(1)->font(2).italic());
    EXPECT_FALSE(list().topLevelItem(0)->font(2).italic());
    list().setCurrentItem(list().topLevelItem(1));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(window().code().current()->place().line, 3);
    modA->CodeModule()->ReplaceLine(4, "    x = x + 1");
    settleRest();
    EXPECT_FALSE(list().topLevelItem(1)->font(2).italic());
}

TEST_F(Searching, ResultsOfAClosedProjectAreRemoved) {
    openTwo();
    search("x");
    clean(project());
    bench->host().VBProjects()->Remove(project());
    settle();
    EXPECT_EQ(results().size(), 2u);
}

TEST_F(Searching, IsStopped) {
    test::SampleProject big("Big");
    const std::string line = "Dim x1, x2, x3, x4\r\n";
    std::string code;
    for (int i = 0; i < 1000; ++i) code += line;
    for (int i = 0; i < 60; ++i) big.module(fmt::format("mod{}", i), code);
    open(big);
    menuItem("&Edit", "Find in All Pro&jects...")->trigger();
    window().findBar().findChild<QLineEdit*>("findWhat")->setText("x4");
    window().findBar().findAll();
    ASSERT_TRUE(window().results().isSearching());
    EXPECT_TRUE(window().results().findChild<QPushButton*>("stopSearch")->isVisible());
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(window().results().isSearching());
    EXPECT_NE(summary().find("stopped after"), std::string::npos);
    search("x4");
    EXPECT_EQ(summary(), "\"x4\": only the first 10000 lines are listed");
    EXPECT_EQ(results().size(), 10'000u);
}

TEST_F(Searching, NeedsNoCodeWindow) {
    search("x");
    EXPECT_TRUE(results().empty());
    openTwo();
    window().code().closeAll();
    settle();
    search("Sub C");
    EXPECT_EQ(results().size(), 1u);
}

TEST_F(Searching, LeavesTheToolboxItsWidth) {
    openTwo();
    auto* const toolbox = window().findChild<QDockWidget*>("toolboxDock");
    toolbox->show();
    window().resize(784, 600);
    settle();
    const int before = toolbox->width();
    search("x");
    settle();
    EXPECT_NEAR(toolbox->width(), before, 4); // docks share what is left over
}

/// Pictures for review.
TEST_F(Searching, LooksLikeItsPictures) {
    openTwo();
    search("x");
    bench->host().VBProjects()->Item(1)->VBComponents()->Item("modA")->CodeModule()->ReplaceLine(1, "Dim z");
    settleRest();
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        settle();
        EXPECT_TRUE(window().grab().save(QString(FERNWICK_BINARY_DIR "/search-%1.png").arg(name)));
    }
}
