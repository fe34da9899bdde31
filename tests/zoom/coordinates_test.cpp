// The arithmetic of messages and of the mapping to the designer.
#include "Add-in/zoom/coordinates.h"
#include "tests/support/errors.h"
#include <gtest/gtest.h>
#include <random>

using fernwick::HiWord;
using fernwick::LoWord;
using fernwick::MakeDWord;
using fernwick::toDesigner;

namespace {

TEST(ZoomCoordinates, WordsAreSigned) {
    EXPECT_EQ(LoWord(0x0003FFFE), -2);
    EXPECT_EQ(HiWord(0x0003FFFE), 3);
    EXPECT_EQ(LoWord(std::int32_t(0x80017FFF)), 32767);
    EXPECT_EQ(HiWord(std::int32_t(0x80017FFF)), -32767);
}

TEST(ZoomCoordinates, ADWordMasksItsLowWord) {
    EXPECT_EQ(MakeDWord(1, 0x201), 0x02010001);
    EXPECT_EQ(MakeDWord(-1, 0), 0xFFFF);
    EXPECT_EQ(MakeDWord(-1, -1), -1);
    EXPECT_EQ(MakeDWord(0, -32768), std::int32_t(0x80000000));
}

TEST(ZoomCoordinates, WordsSurviveADWord) {
    for (const int x : {-32768, -1000, -1, 0, 1, 1000, 32767})
        for (const int y : {-32768, -1, 0, 5, 32767}) {
            const std::intptr_t both = MakeDWord(basic::Integer(x), basic::Integer(y));
            EXPECT_EQ(LoWord(both), x);
            EXPECT_EQ(HiWord(both), y);
        }
}

TEST(ZoomCoordinates, RoundsToTheNearestPixelWithHalvesToEven) {
    EXPECT_EQ(toDesigner(10, 3), 3);
    EXPECT_EQ(toDesigner(11, 3), 4);
    EXPECT_EQ(toDesigner(5, 2), 2);
    EXPECT_EQ(toDesigner(3, 2), 2);
    EXPECT_EQ(toDesigner(1, 2), 0);
    EXPECT_EQ(toDesigner(-1, 2), 0);
    EXPECT_EQ(toDesigner(-3, 2), -2);
    EXPECT_EQ(toDesigner(-5, 2), -2);
}

TEST(ZoomCoordinates, RefusesWhatSixteenBitsCannotHold) {
    EXPECT_EQ(toDesigner(32767, 1), 32767);
    EXPECT_EQ(toDesigner(-32768, 1), -32768);
    EXPECT_EQ(toDesigner(65534, 2), 32767);
    EXPECT_EQ(test::errorOf([] { toDesigner(65535, 2); }), 6);
    EXPECT_EQ(test::errorOf([] { toDesigner(32768, 1); }), 6);
    EXPECT_EQ(test::errorOf([] { toDesigner(-32769, 1); }), 6);
    EXPECT_EQ(test::errorOf([] { toDesigner(1, 0); }), 6);
}

/// A pixel of the designer is drawn as a square; its top left corner leads back to it, at any zoom and offset.
TEST(ZoomCoordinates, TheCornerOfADrawnPixelLeadsToThePixel) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto any = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    for (int i = 0; i < 20000; ++i) {
        const int level = any(1, 5), pixel = any(-6000, 6000), offset = any(-2184, 2184);
        const int drawnAt = pixel * level - offset;
        ASSERT_EQ(toDesigner(std::int64_t(offset) + drawnAt, level), pixel) << level << " " << offset;
    }
}

TEST(ZoomCoordinates, NoPlaceIsFartherThanHalfAPixel) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int i = 0; i < 20000; ++i) {
        const int level = std::uniform_int_distribution(1, 5)(random);
        const int place = std::uniform_int_distribution(-30000, 30000)(random);
        const int twice = 2 * (toDesigner(place, level) * level - place);
        ASSERT_LE(std::abs(twice), level) << place << " " << level;
        if (std::abs(twice) == level) { ASSERT_EQ(toDesigner(place, level) % 2, 0) << place << " " << level; }
    }
}

} // namespace
