#include "Add-in/platform/windows/scroll_bar.h"
#include <gtest/gtest.h>

namespace {

class ScrollBars : public testing::Test {
protected:
    fernwick::ScrollBar bar{nullptr, "VScroll1", {1, 2, 3, 4}, 10};
    int changes = 0, scrolls = 0, redraws = 0;
    fernwick::Subscription change = bar.Change.connect([this] { ++changes; });
    fernwick::Subscription scroll = bar.Scroll.connect([this] { ++scrolls; });
    fernwick::Subscription redraw = bar.changed.connect([this] { ++redraws; });
};

TEST_F(ScrollBars, AreHiddenAtFirst) {
    EXPECT_FALSE(bar.Visible());
    EXPECT_EQ(bar.Place().Height, 4);
    EXPECT_EQ(bar.Value(), 10);
}

TEST_F(ScrollBars, ANewValueRaisesChangeOnce) {
    bar.Value(20);
    bar.Value(20);
    EXPECT_EQ(std::pair(changes, redraws), std::pair(1, 1));
}

TEST_F(ScrollBars, AValueStaysInside) {
    bar.bounds(-450, 100);
    bar.Value(101);
    EXPECT_EQ(bar.Value(), 100);
    bar.Value(-451);
    EXPECT_EQ(bar.Value(), -450);
}

TEST_F(ScrollBars, NewBoundsMoveTheValueInsideOnce) {
    bar.bounds(0, 5);
    EXPECT_EQ(bar.Value(), 5);
    EXPECT_EQ(std::pair(changes, redraws), std::pair(1, 1));
    bar.bounds(0, 5);
    EXPECT_EQ(std::pair(changes, redraws), std::pair(1, 1));
    bar.bounds(0, 6);
    EXPECT_EQ(std::pair(changes, redraws), std::pair(1, 2));
}

TEST_F(ScrollBars, TheBoundsMayBeReversed) {
    bar.bounds(100, -100);
    bar.Value(200);
    EXPECT_EQ(bar.Value(), 100);
    bar.Value(-200);
    EXPECT_EQ(bar.Value(), -100);
}

TEST_F(ScrollBars, BoundsAndStepsAreRoundedAndClamped) {
    bar.bounds(-40000, 40000);
    EXPECT_EQ(std::pair(bar.Min(), bar.Max()), std::pair(-32768, 32767));
    bar.bounds(0.5, 1.5);
    EXPECT_EQ(std::pair(bar.Min(), bar.Max()), std::pair(0, 2));
    bar.steps(0, 40000);
    EXPECT_EQ(std::pair(bar.SmallChange(), bar.LargeChange()), std::pair(1, 32767));
    bar.steps(-5, 2.5);
    EXPECT_EQ(std::pair(bar.SmallChange(), bar.LargeChange()), std::pair(1, 2));
}

TEST_F(ScrollBars, NewStepsAreDrawnOnce) {
    bar.steps(15, 300);
    bar.steps(15, 300);
    EXPECT_EQ(std::pair(changes, redraws), std::pair(0, 1));
}

TEST_F(ScrollBars, TheThumbFollowsWithoutAnEvent) {
    bar.follow(-450);
    EXPECT_EQ(bar.Value(), -450);
    EXPECT_EQ(std::pair(changes, redraws), std::pair(0, 1));
}

TEST_F(ScrollBars, ADragRaisesScrollAndThenOneChange) {
    bar.drag(11);
    bar.drag(11);
    bar.drag(40000);
    EXPECT_EQ(bar.Value(), 32767);
    EXPECT_EQ(std::pair(changes, scrolls), std::pair(0, 2));
    bar.release();
    bar.release();
    EXPECT_EQ(std::pair(changes, scrolls), std::pair(1, 2));
}

TEST_F(ScrollBars, ADragBackToItsStartChangesNothing) {
    bar.drag(11);
    bar.drag(10);
    bar.release();
    EXPECT_EQ(std::pair(changes, scrolls), std::pair(0, 2));
}

} // namespace
