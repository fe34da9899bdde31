#include "Add-in/core/modGeneral.h"
#include "tests/support/errors.h"

using namespace fernwick;

TEST(Arrays, HaveBoundsOnceAllocated) {
    Array<int> array;
    EXPECT_TRUE(IsArrayEmpty(array));
    EXPECT_EQ(SafeUpdim(array), 0);
    EXPECT_EQ(test::errorOf([&] { array.LBound(); }), 9);
    array.ReDim(0, -1);
    EXPECT_FALSE(IsArrayEmpty(array));
    EXPECT_EQ(SafeUpdim(array), 0);
    array.ReDim(2, 4);
    EXPECT_EQ(SafeUpdim(array), 3);
    array[4] = 7;
    EXPECT_EQ(test::errorOf([&] { array[5] = 7; }), 9);
    EXPECT_EQ(test::errorOf([&] { array[1] = 7; }), 9);
    EXPECT_EQ(test::errorOf([&] { array.ReDim(1, -1); }), 9);
    EXPECT_EQ(test::errorOf([&] { array.ReDim(0, 2'000'000'000); }), 7);
    EXPECT_EQ(array[4], 7);
}

TEST(Arrays, GrowByOneElementAtTheEnd) {
    Array<std::string> fresh, placed;
    fresh.Append("a");
    EXPECT_EQ(fresh.LBound(), 0);
    EXPECT_EQ(fresh[0], "a");
    placed.ReDim(5, 5);
    placed.Append("b");
    EXPECT_EQ(placed.UBound(), 6);
    EXPECT_EQ(placed[6], "b");
}
