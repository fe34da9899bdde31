// Toolbars are in the same places in the model and in the window.
#include "tests/workbench/desktop.h"
#include <QToolBar>
#include <QToolButton>
#include <gmock/gmock.h>

namespace {

using workbench::BarPlace;

struct DesktopToolBars : test::Desktop {
    DesktopToolBars() {
        window().resize(1100, 700);
        bench->connect();
        settle();
    }

    host::Bar& bar(const std::string& name) {
        return *basic::cast<host::Bar>(bench->host().CommandBars()->Item(name)).shared();
    }
    QToolBar& toolBar(const QString& name) { return *window().findChild<QToolBar*>(name); }
    BarPlace place(const std::string& name) { return workbench::placeOf(bar(name)); }
    void move(const std::string& name, const BarPlace& place) {
        workbench::setPlace(bar(name), place);
        settle();
    }
    /// Drags the toolbar by its handle to this point of the window.
    void drag(const QString& name, const QPoint& to) {
        auto& dragged = toolBar(name);
        const QPoint handle(4, 4);
        const auto from = dragged.mapTo(&window(), handle);
        QTest::mousePress(&dragged, Qt::LeftButton, {}, handle);
        constexpr int kSteps = 8;
        for (int step = 1; step <= kSteps; ++step)
            QTest::mouseMove(&dragged, dragged.mapFromGlobal(window().mapToGlobal(from + (to - from) * step / kSteps)),
                             1);
        QTest::mouseRelease(&dragged, Qt::LeftButton, {}, dragged.mapFromGlobal(window().mapToGlobal(to)), 1);
        settle();
    }
};

} // namespace

TEST_F(DesktopToolBars, NewOnesAreSideBySideAtTheTop) {
    EXPECT_EQ(window().toolBarArea(&toolBar("Fernwick")), Qt::TopToolBarArea);
    EXPECT_EQ(toolBar("Fernwick").y(), toolBar("Standard").y());
    EXPECT_GT(toolBar("Quinloft Utilities").x(), toolBar("Fernwick").x());
}

TEST_F(DesktopToolBars, TheModelGetsTheirFinalPlaces) {
    EXPECT_EQ(place("Fernwick").left, toolBar("Fernwick").x() - toolBar("Standard").x());
    EXPECT_EQ(place("Fernwick").row, 1);
    EXPECT_GT(place("Quinloft Utilities").left, place("Fernwick").left);
}

TEST_F(DesktopToolBars, AnAddInMovesItsBarToEachSide) {
    for (const auto& [position, area] :
         {std::pair(office::msoBarLeft, Qt::LeftToolBarArea), std::pair(office::msoBarRight, Qt::RightToolBarArea),
          std::pair(office::msoBarBottom, Qt::BottomToolBarArea), std::pair(office::msoBarTop, Qt::TopToolBarArea)}) {
        bar("Fernwick").Position(position);
        settle();
        EXPECT_EQ(window().toolBarArea(&toolBar("Fernwick")), area);
        EXPECT_EQ(place("Fernwick").position, position);
    }
}

TEST_F(DesktopToolBars, RowsAndOffsetsAreKept) {
    move("Fernwick", {true, office::msoBarTop, 2, 300, 0});
    EXPECT_GT(toolBar("Fernwick").y(), toolBar("Standard").y());
    EXPECT_EQ(place("Fernwick").row, 2);
    move("Quinloft Utilities", {true, office::msoBarTop, 1, 500, 0});
    EXPECT_EQ(toolBar("Quinloft Utilities").x(), toolBar("Standard").x() + 500);
    EXPECT_EQ(place("Quinloft Utilities").left, 500);
}

TEST_F(DesktopToolBars, RowsOfTheOtherSidesCountFromTheOutside) {
    for (const auto position : {office::msoBarBottom, office::msoBarLeft, office::msoBarRight}) {
        move("Standard", {true, position, 1, 0, 0});
        move("Fernwick", {true, position, 2, 0, 0});
        EXPECT_EQ(place("Standard").row, 1) << position;
        EXPECT_EQ(place("Fernwick").row, 2) << position;
    }
}

TEST_F(DesktopToolBars, AFloatingBarFollowsTheModelAndDocksAgain) {
    move("Fernwick", {true, office::msoBarFloating, 1, 321, 234});
    ASSERT_TRUE(toolBar("Fernwick").isFloating());
    EXPECT_TRUE(toolBar("Fernwick").isVisible());
    EXPECT_EQ(toolBar("Fernwick").pos(), QPoint(321, 234));
    EXPECT_EQ(place("Fernwick"), (BarPlace{true, office::msoBarFloating, 1, 321, 234}));
    move("Fernwick", {true, office::msoBarTop, 1, 100, 0});
    EXPECT_FALSE(toolBar("Fernwick").isFloating());
    EXPECT_EQ(toolBar("Fernwick").y(), toolBar("Standard").y());
}

TEST_F(DesktopToolBars, DraggingUpdatesTheModelAtOnce) {
    drag("Fernwick", QPoint(8, 400));
    EXPECT_EQ(place("Fernwick").position, office::msoBarLeft);
    drag("Fernwick", QPoint(500, 400));
    EXPECT_TRUE(toolBar("Fernwick").isFloating());
    EXPECT_EQ(place("Fernwick").position, office::msoBarFloating);
    EXPECT_EQ(QPoint(place("Fernwick").left, place("Fernwick").top), toolBar("Fernwick").pos());
}

TEST_F(DesktopToolBars, HidingIsSynchronizedBothWays) {
    toolBar("Fernwick").toggleViewAction()->trigger();
    EXPECT_FALSE(bar("Fernwick").Visible());
    settle();
    bar("Fernwick").Visible(true);
    settle();
    EXPECT_TRUE(toolBar("Fernwick").isVisible());
}

TEST_F(DesktopToolBars, AnInvalidPositionMeansTheTop) {
    move("Fernwick", {true, 7, 1, 0, 0});
    EXPECT_EQ(place("Fernwick").position, office::msoBarTop);
    EXPECT_TRUE(toolBar("Fernwick").isVisible());
}

TEST_F(DesktopToolBars, ADisabledBarCanStillBeMoved) {
    EXPECT_FALSE(bar("Fernwick").Enabled());
    EXPECT_TRUE(toolBar("Fernwick").isEnabled());
    for (const auto* button : toolBar("Fernwick").actions()) EXPECT_TRUE(button->isSeparator() || !button->isEnabled());
}

/// The add-in stores the places when a project closes and restores them when one opens.
TEST_F(DesktopToolBars, PlacesAreRestoredAfterARestart) {
    move("Standard", {true, office::msoBarBottom, 1, 0, 0});
    drag("Fernwick", QPoint(8, 400));
    move("Quinloft Utilities", {false, office::msoBarTop, 2, 0, 0});
    const std::vector left{place("Fernwick"), place("Quinloft Utilities"), place("Standard")};
    bench->addIn().toolbars.SaveAllToolbarState();
    window().close();
    bench = std::make_unique<workbench::Workbench>();
    window().show();
    bench->connect();
    settle();
    EXPECT_EQ((std::vector{place("Fernwick"), place("Quinloft Utilities"), place("Standard")}), left);
    EXPECT_EQ(window().toolBarArea(&toolBar("Fernwick")), Qt::LeftToolBarArea);
    EXPECT_FALSE(toolBar("Quinloft Utilities").isVisible());
    EXPECT_EQ(window().toolBarArea(&toolBar("Standard")), Qt::BottomToolBarArea);
}
