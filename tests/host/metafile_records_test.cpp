// Each kind of record, in both formats.
#include "tests/host/metafile_drawing.h"
#include "tests/support/metafile_bytes.h"
#include <bit>
#include <functional>

using namespace host;
using test::longs;
using test::path;
using test::point;
using test::points;
using test::text;
using test::words;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// 96 units across and down a picture of as many pixels.
test::WindowsRecords windows() { return test::WindowsRecords().add(0x020C, words({96, 96})); }
std::vector<Drawn> drawnBy(const test::WindowsRecords& records) { return test::drawn(records.file(960, 960)); }
std::vector<Drawn> drawnBy(const test::EnhancedRecords& records) { return test::drawn(records.file(1, 1)); }

/// Of the only thing that is drawn.
template <class Records>
DrawnPath onlyPath(const Records& records) {
    const auto all = drawnBy(records);
    EXPECT_THAT(all, SizeIs(1));
    return all.empty() ? DrawnPath() : path(all[0]);
}
template <class Records>
std::vector<std::string> onlyPoints(const Records& records) {
    const auto found = onlyPath(records);
    EXPECT_THAT(found.figures, SizeIs(1));
    return found.figures.empty() ? std::vector<std::string>() : points(found.figures[0]);
}

/// "first middle last" of the points of a curve, and whether it is closed.
template <class Records>
std::string arcOf(const Records& records) {
    const auto found = onlyPath(records);
    if (found.figures.empty()) return "";
    const auto& at = found.figures[0].points;
    return point(at.front()) + " " + point(at[at.size() / 2]) + " " + point(at.back()) +
           (found.figures[0].isClosed ? " closed" : "") +
           (found.brush.style == DrawnBrush::Style::None ? "" : " filled");
}

std::string reals(std::initializer_list<float> values) {
    std::string bytes;
    for (const float value : values) bytes += longs({std::bit_cast<std::int32_t>(value)});
    return bytes;
}

/// Type, what is before the points, and the points with two or four bytes.
test::EnhancedRecords lines(std::uint32_t type, std::initializer_list<std::int64_t> values, bool isShort = false) {
    const auto count = std::int64_t(values.size() / 2);
    return test::EnhancedRecords()
        .add(27, longs({90, 90}))
        .add(type, longs({0, 0, 0, 0, count}) + (isShort ? words(values) : longs(values)));
}

/// In blue, 20 pixels high, and with all that a font can add.
void expectSlantedArial(const DrawnText& shown) {
    EXPECT_EQ(shown.face, "Arial");
    EXPECT_EQ(shown.height, 20);
    EXPECT_FALSE(shown.isCellHeight);
    EXPECT_EQ(shown.angle, 45);
    EXPECT_TRUE(shown.isBold && shown.isItalic && shown.isUnderlined);
    EXPECT_EQ(shown.colour, 0x0000FFU);
}

/// Corners of a rectangle of 10 by 10 at the origin, after these records.
std::vector<std::string> squareAfter(test::EnhancedRecords records) {
    return onlyPoints(records.rectangle(0, 0, 10, 10));
}

} // namespace

// ---- the 16-bit format: the context ----------------------------------------------------------------------------------

TEST(WindowsRecords, MoveTheWindow) {
    EXPECT_THAT(onlyPoints(windows().add(0x020B, words({5, 10})).rectangle(10, 5, 20, 15)),
                ElementsAre("0,0", "10,0", "10,10", "0,10"));
    EXPECT_THAT(onlyPoints(windows().add(0x020B, words({1, 2})).add(0x020F, words({4, 8})).rectangle(10, 5, 20, 15)),
                ElementsAre("0,0", "10,0", "10,10", "0,10"));
}

TEST(WindowsRecords, ScaleTheWindow) {
    // the divisor before the factor, and down before across
    EXPECT_THAT(onlyPoints(windows().add(0x0410, words({1, 2, 4, 1})).rectangle(0, 0, 10, 10)),
                ElementsAre("0,0", "40,0", "40,5", "0,5"));
    for (const auto& zero : {words({0, 2, 4, 1}), words({1, 0, 4, 1}), words({1, 2, 0, 1}), words({1, 2, 4, 0})})
        EXPECT_THAT(onlyPoints(windows().add(0x0410, zero).rectangle(0, 0, 10, 10)),
                    ElementsAre("0,0", "10,0", "10,10", "0,10"));
}

TEST(WindowsRecords, AnEmptyWindowIsIgnored) {
    for (const auto& empty : {words({0, 10}), words({10, 0})})
        EXPECT_THAT(onlyPoints(windows().add(0x020C, empty).rectangle(0, 0, 10, 10)),
                    ElementsAre("0,0", "10,0", "10,10", "0,10"));
}

TEST(WindowsRecords, SaveAndRestoreTheContext) {
    const auto saved = windows().add(0x001E, "").brush(test::kRed).select(0).add(0x001E, "");
    const auto after = [&](int which) {
        auto records = saved;
        return onlyPath(records.brush(test::kBlue).select(1).add(0x0127, words({which})).rectangle(0, 0, 9, 9))
            .brush.colour;
    };
    EXPECT_EQ(after(-1), 0xFF0000U);
    EXPECT_EQ(after(-2), 0xFFFFFFU);
    EXPECT_EQ(after(1), 0xFFFFFFU);
    EXPECT_EQ(after(2), 0xFF0000U);
    for (const int unknown : {0, 3, -3}) EXPECT_EQ(after(unknown), 0x0000FFU) << unknown;
}

TEST(WindowsRecords, FillWindingsOrEachSecondArea) {
    EXPECT_FALSE(onlyPath(windows().add(0x0106, words({1})).rectangle(0, 0, 9, 9)).fillsWindings);
    EXPECT_TRUE(onlyPath(windows().add(0x0106, words({2})).rectangle(0, 0, 9, 9)).fillsWindings);
}

// ---- the 16-bit format: objects --------------------------------------------------------------------------------------

TEST(WindowsRecords, PensHaveStyles) {
    using Style = DrawnPen::Style;
    const Style styles[] = {Style::Solid, Style::Dash, Style::Dot, Style::DashDot, Style::DashDotDot, Style::None};
    for (int i = 0; i < 6; ++i) {
        const auto drawing = onlyPath(windows().pen(i, test::kRed).select(0).rectangle(0, 0, 9, 9));
        EXPECT_EQ(drawing.pen.style, styles[i]);
        EXPECT_EQ(drawing.pen.colour, 0xFF0000U);
    }
    EXPECT_EQ(onlyPath(windows().pen(0x106, 0).select(0).rectangle(0, 0, 9, 9)).pen.style, Style::Solid);
}

TEST(WindowsRecords, PensAreAtLeastAPixelWide) {
    const auto width = [](int logical) {
        const auto pen = words({0, logical, 0}) + longs({0});
        return onlyPath(windows().add(0x02FA, pen).select(0).add(0x020C, words({48, 48})).rectangle(0, 0, 9, 9))
            .pen.width;
    };
    EXPECT_EQ(width(3), 6);
    EXPECT_EQ(width(-3), 6);
    EXPECT_EQ(width(0), 1);
}

TEST(WindowsRecords, BrushesAreSolidHatchedOrEmpty) {
    using Style = DrawnBrush::Style;
    const auto brush = [](int style, int hatch) {
        const auto made = words({style}) + longs({test::kGreen}) + words({hatch});
        return onlyPath(windows().add(0x02FC, made).select(0).rectangle(0, 0, 9, 9)).brush;
    };
    EXPECT_EQ(brush(0, 3).style, Style::Solid);
    EXPECT_EQ(brush(0, 3).hatch, 0);
    EXPECT_EQ(brush(1, 0).style, Style::None);
    for (int hatch = 0; hatch < 6; ++hatch) {
        EXPECT_EQ(brush(2, hatch).style, Style::Hatch);
        EXPECT_EQ(brush(2, hatch).hatch, hatch);
        EXPECT_EQ(brush(2, hatch).colour, 0x00FF00U);
    }
    EXPECT_EQ(brush(2, 6).style, Style::None);
    EXPECT_EQ(brush(3, 0).style, Style::None);
}

TEST(WindowsRecords, PatternsFillNothing) {
    for (const std::uint16_t function : {0x01F9, 0x0142})
        EXPECT_EQ(onlyPath(windows().add(function, "").select(0).rectangle(0, 0, 9, 9)).brush.style,
                  DrawnBrush::Style::None);
}

TEST(WindowsRecords, PalettesAndRegionsHaveNumbers) {
    const auto all = windows().brush(test::kRed).add(0x00F7, "").add(0x06FF, "").brush(test::kBlue);
    const auto selected = [&](int number) {
        auto records = all;
        return onlyPath(records.select(0).select(number).rectangle(0, 0, 9, 9)).brush.colour;
    };
    EXPECT_EQ(selected(1), 0xFF0000U);
    EXPECT_EQ(selected(2), 0xFF0000U);
    EXPECT_EQ(selected(3), 0x0000FFU);
    EXPECT_EQ(selected(4), 0xFF0000U); // there is none
}

// ---- the 16-bit format: shapes ---------------------------------------------------------------------------------------

TEST(WindowsRecords, LinesStartAtThePosition) {
    const auto all =
        drawnBy(windows().add(0x0214, words({2, 1})).add(0x0213, words({4, 3})).add(0x0213, words({6, 5})));
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_THAT(points(path(all[0]).figures[0]), ElementsAre("1,2", "3,4"));
    EXPECT_THAT(points(path(all[1]).figures[0]), ElementsAre("3,4", "5,6"));
    EXPECT_EQ(path(all[0]).brush.style, DrawnBrush::Style::None);
    EXPECT_FALSE(path(all[0]).figures[0].isClosed);
}

TEST(WindowsRecords, PolygonsAreClosedAndPolylinesAreNot) {
    const auto fields = words({3, 1, 2, 3, 4, 5, 6});
    const auto polygon = onlyPath(windows().add(0x0324, fields)), polyline = onlyPath(windows().add(0x0325, fields));
    EXPECT_THAT(points(polygon.figures[0]), ElementsAre("1,2", "3,4", "5,6"));
    EXPECT_TRUE(polygon.figures[0].isClosed);
    EXPECT_EQ(polygon.brush.style, DrawnBrush::Style::Solid);
    EXPECT_THAT(points(polyline.figures[0]), ElementsAre("1,2", "3,4", "5,6"));
    EXPECT_FALSE(polyline.figures[0].isClosed);
    EXPECT_EQ(polyline.brush.style, DrawnBrush::Style::None);
    const auto several = onlyPath(windows().add(0x0538, words({2, 2, 1, 1, 2, 3, 4, 5, 6})));
    ASSERT_THAT(several.figures, SizeIs(2));
    EXPECT_THAT(points(several.figures[0]), ElementsAre("1,2", "3,4"));
    EXPECT_THAT(points(several.figures[1]), ElementsAre("5,6"));
    EXPECT_TRUE(several.figures[1].isClosed);
}

TEST(WindowsRecords, RoundRectanglesHaveCorners) {
    const auto found = onlyPoints(windows().add(0x061C, words({40, 20, 90, 80, 10, 20})));
    ASSERT_THAT(found, SizeIs(76)); // four quarters of an ellipse of 20 by 40
    const std::vector<std::string> ends{found[0],  found[18], found[19], found[37],
                                        found[38], found[56], found[57], found[75]};
    EXPECT_THAT(ends, ElementsAre("80,70", "70,90", "30,90", "20,70", "20,30", "30,10", "70,10", "80,30"));
    // a corner that is too large makes an ellipse of it
    const auto round = onlyPoints(windows().add(0x061C, words({-999, 999, 10, 20, 90, 80})));
    EXPECT_EQ(round[0], "80,50");
    EXPECT_EQ(round[38], "20,50");
}

TEST(WindowsRecords, EllipsesFillTheirBox) {
    const auto found = onlyPath(windows().add(0x0418, words({90, 80, 10, 20})));
    const auto at = points(found.figures[0]);
    ASSERT_THAT(at, SizeIs(73));
    EXPECT_EQ(at[0], "80,50");
    EXPECT_EQ(at[18], "50,90");
    EXPECT_EQ(at[36], "20,50");
    EXPECT_EQ(at[54], "50,10");
    EXPECT_TRUE(found.figures[0].isClosed);
}

TEST(WindowsRecords, ArcsTurnAgainstTheClock) {
    // from the ray to the right to the ray upwards
    const auto fields = words({0, 50, 50, 99, 90, 90, 10, 10});
    EXPECT_EQ(arcOf(windows().add(0x0817, fields)), "90,50 78,22 50,10");
    EXPECT_EQ(arcOf(windows().add(0x0830, fields)), "90,50 78,22 50,10 closed filled");
    EXPECT_EQ(arcOf(windows().add(0x081A, fields)), "90,50 76,19 50,50 closed filled");
    // equal rays make a whole ellipse
    EXPECT_EQ(arcOf(windows().add(0x0817, words({50, 99, 50, 99, 90, 90, 10, 10}))), "90,50 10,50 90,50");
    // in a window that grows upwards
    EXPECT_EQ(arcOf(windows().add(0x020C, words({-96, 96})).add(0x0817, words({0, 50, -50, 99, -90, 90, -10, 10}))),
              "90,50 22,78 50,10");
}

TEST(WindowsRecords, PixelsAreSmallBoxes) {
    const auto pixel = onlyPath(windows().add(0x041F, longs({test::kRed}) + words({20, 10})));
    EXPECT_THAT(points(pixel.figures[0]), ElementsAre("10,20", "11,20", "11,21", "10,21"));
    EXPECT_EQ(pixel.brush.colour, 0xFF0000U);
    EXPECT_EQ(pixel.brush.style, DrawnBrush::Style::Solid);
    EXPECT_EQ(pixel.pen.style, DrawnPen::Style::None);
}

TEST(WindowsRecords, ABoxIsFilledByAnOperation) {
    const auto filled = [](std::uint32_t operation) {
        return drawnBy(windows().brush(test::kGreen).select(0).add(0x061D, longs({operation}) + words({4, 3, 2, 1})));
    };
    const auto copied = filled(0x00F00021), black = filled(0x00000042), white = filled(0x00FF0062);
    ASSERT_THAT(copied, SizeIs(1));
    EXPECT_THAT(points(path(copied[0]).figures[0]), ElementsAre("1,2", "4,2", "4,6", "1,6"));
    EXPECT_TRUE(path(copied[0]).figures[0].isClosed);
    EXPECT_EQ(path(copied[0]).brush.colour, 0x00FF00U);
    EXPECT_EQ(path(copied[0]).pen.style, DrawnPen::Style::None);
    ASSERT_THAT(black, SizeIs(1));
    EXPECT_EQ(path(black[0]).brush.colour, 0U);
    ASSERT_THAT(white, SizeIs(1));
    EXPECT_EQ(path(white[0]).brush.colour, 0xFFFFFFU);
    EXPECT_THAT(filled(0x00AA0029), IsEmpty()); // leaves what is there
}

// ---- the 16-bit format: texts and bitmaps ----------------------------------------------------------------------------

TEST(WindowsRecords, TextsHaveTheirFont) {
    const auto font =
        words({-20, 0, 450, 0, 700}) + std::string("\1\1\0\0\0\0\0\0", 8) + std::string("Arial\0none", 10);
    const auto all = drawnBy(windows()
                                 .add(0x02FB, font)
                                 .select(0)
                                 .add(0x0209, longs({test::kBlue}))
                                 .add(0x0A32, words({20, 10, 3, 0}) + "abc"));
    ASSERT_THAT(all, SizeIs(1));
    const auto& shown = text(all[0]);
    EXPECT_EQ(point(shown.at), "10,20");
    EXPECT_EQ(shown.text, "abc");
    expectSlantedArial(shown);

    const auto light = words({20, 0, 0, 0, 599}) + std::string(8, '\0') + "Arial";
    const auto other = drawnBy(windows().add(0x02FB, light).select(0).add(0x0A32, words({20, 10, 3, 0}) + "abc"));
    EXPECT_TRUE(text(other[0]).isCellHeight);
    EXPECT_FALSE(text(other[0]).isBold || text(other[0]).isItalic || text(other[0]).isUnderlined);
}

TEST(WindowsRecords, ATextMayFollowItsBox) {
    for (const int option : {2, 4, 6}) {
        const auto all = drawnBy(windows().add(0x0A32, words({20, 10, 2, option, 1, 2, 3, 4}) + "ok"));
        ASSERT_THAT(all, SizeIs(1));
        EXPECT_EQ(text(all[0]).text, "ok") << option;
    }
}

TEST(WindowsRecords, TextsAreAligned) {
    using Across = DrawnText::Across;
    using Down = DrawnText::Down;
    const auto aligned = [](int align) {
        return text(drawnBy(windows()
                                .add(0x0214, words({8, 7}))
                                .add(0x012E, words({align}))
                                .add(0x0521, words({2}) + "ok" + words({20, 10})))[0]);
    };
    EXPECT_EQ(point(aligned(0).at), "10,20");
    EXPECT_EQ(point(aligned(1).at), "7,8"); // at the position
    EXPECT_EQ(aligned(0).across, Across::Left);
    EXPECT_EQ(aligned(2).across, Across::Right);
    EXPECT_EQ(aligned(6).across, Across::Centre);
    EXPECT_EQ(aligned(0).down, Down::Top);
    EXPECT_EQ(aligned(8).down, Down::Bottom);
    EXPECT_EQ(aligned(24).down, Down::Baseline);
}

TEST(WindowsRecords, PartsOfBitmapsAreStretched) {
    const auto shown = [](std::uint16_t function, const std::string& fields) {
        const auto all = drawnBy(windows().add(function, fields + test::fourPixels()));
        EXPECT_THAT(all, SizeIs(1));
        const auto& one = std::get<DrawnBitmap>(all[0]);
        const auto number = [](double value) { return std::to_string(std::lround(value)); };
        return point(one.from) + " " + point(one.to) + " of " + number(one.left) + "," + number(one.top) + " " +
               number(one.width) + "x" + number(one.height);
    };
    // The lowest line of the bitmap counts as the first in two of them.
    EXPECT_EQ(shown(0x0F43, longs({0xCC0020}) + words({0, 1, 2, 0, 0, 40, 30, 20, 10})), "10,20 40,60 of 0,1 2x1");
    EXPECT_EQ(shown(0x0B41, longs({0xCC0020}) + words({1, 2, 0, 0, 40, 30, 20, 10})), "10,20 40,60 of 0,0 2x1");
    EXPECT_EQ(shown(0x0940, longs({0xCC0020}) + words({0, 1, 2, 1, 20, 10})), "10,20 11,22 of 1,0 1x2");
    EXPECT_EQ(shown(0x0D33, words({0, 2, 0, 0, 1, 1, 1, 20, 10})), "10,20 11,21 of 1,1 1x1");
}

TEST(WindowsRecords, BitmapsMayHaveColourTables) {
    const auto stretched = longs({0xCC0020}) + words({0, 2, 2, 0, 0, 90, 90, 0, 0});
    const auto sizeOf = [&](const std::string& bitmap) -> std::size_t {
        const auto all = drawnBy(windows().add(0x0F43, stretched + bitmap));
        return all.empty() ? 0 : std::get<DrawnBitmap>(all[0]).bmp.size();
    };
    const auto whereBitsAre = [&](const std::string& bitmap) {
        const auto all = drawnBy(windows().add(0x0F43, stretched + bitmap));
        return all.empty() ? 0 : static_cast<unsigned char>(std::get<DrawnBitmap>(all[0]).bmp[10]);
    };
    const std::string bits(8, '\x55');
    const auto core = longs({12}) + words({2, 2, 1, 1}) + std::string(6, '\0') + bits;
    const auto one = longs({40, 2, 2}) + words({1, 1}) + longs({0, 0, 0, 0, 0, 0, 0, 0xFFFFFF}) + bits;
    const auto used = longs({40, 2, 2}) + words({1, 8}) + longs({0, 0, 0, 0, 3, 0, 1, 2, 3}) + bits;
    const auto masks = longs({40, 2, 2}) + words({1, 16}) + longs({3, 0, 0, 0, 0, 0, 1, 2, 3}) + bits;
    EXPECT_EQ(sizeOf(core), 14 + core.size());
    EXPECT_EQ(whereBitsAre(core), 14 + 12 + 6);
    EXPECT_EQ(whereBitsAre(one), 14 + 40 + 8);
    EXPECT_EQ(whereBitsAre(used), 14 + 40 + 12);
    EXPECT_EQ(whereBitsAre(masks), 14 + 40 + 12);
}

// ---- the 32-bit format: the context ----------------------------------------------------------------------------------

TEST(EnhancedRecords, MapTheWindowToTheViewport) {
    test::EnhancedRecords mapped;
    mapped.add(17, longs({8})).add(9, longs({20, 40})).add(11, longs({40, 40}));
    EXPECT_THAT(squareAfter(mapped), ElementsAre("0,0", "20,0", "20,10", "0,10"));
    auto moved = mapped;
    moved.add(10, longs({5, 4})).add(12, longs({30, 20}));
    EXPECT_THAT(squareAfter(moved), ElementsAre("20,16", "40,16", "40,26", "20,26"));
    auto isotropic = mapped;
    isotropic.add(17, longs({7}));
    EXPECT_THAT(squareAfter(isotropic), ElementsAre("0,0", "10,0", "10,10", "0,10"));
    auto asText = mapped;
    asText.add(17, longs({1}));
    EXPECT_THAT(squareAfter(asText), ElementsAre("0,0", "10,0", "10,10", "0,10"));
    auto unknown = mapped;
    unknown.add(17, longs({0})).add(17, longs({9}));
    EXPECT_THAT(squareAfter(unknown), ElementsAre("0,0", "20,0", "20,10", "0,10"));
}

TEST(EnhancedRecords, UnitsOfLengthGrowUpwards) {
    const auto corner = [](int mode) {
        return onlyPoints(test::EnhancedRecords().add(17, longs({mode})).rectangle(0, 0, 1000, 1000))[2];
    };
    // 96 pixels are 960 units of the device, and 254 millimetres of it
    EXPECT_EQ(corner(2), "378,-378");
    EXPECT_EQ(corner(3), "38,-38");
    EXPECT_EQ(corner(4), "960,-960");
    EXPECT_EQ(corner(5), "96,-96");
    EXPECT_EQ(corner(6), "67,-67");
}

TEST(EnhancedRecords, ScaleWindowAndViewport) {
    const auto scaled = [](std::uint32_t type, std::initializer_list<std::int64_t> fields) {
        return squareAfter(test::EnhancedRecords().add(17, longs({8})).add(type, longs(fields)))[2];
    };
    EXPECT_EQ(scaled(31, {2, 1, 6, 2}), "20,30");
    EXPECT_EQ(scaled(32, {1, 2, 2, 6}), "20,30");
    EXPECT_EQ(scaled(31, {0, 1, 2, 1}), "10,20");
    EXPECT_EQ(scaled(31, {2, 1, 2, 0}), "20,10");
}

TEST(EnhancedRecords, TransformTheWorld) {
    const auto doubled = reals({2, 0, 0, 2, 0, 0}), moved = reals({1, 0, 0, 1, 5, 7}),
               turned = reals({0, 1, -1, 0, 0, 0});
    const auto after = [](const test::EnhancedRecords& records) { return squareAfter(records); };
    EXPECT_THAT(after(test::EnhancedRecords().add(35, doubled)), ElementsAre("0,0", "20,0", "20,20", "0,20"));
    EXPECT_THAT(after(test::EnhancedRecords().add(35, turned)), ElementsAre("0,0", "0,10", "-10,10", "-10,0"));
    const auto modified = [&](int how) {
        return after(test::EnhancedRecords().add(35, doubled).add(36, moved + longs({how})));
    };
    EXPECT_THAT(modified(1), ElementsAre("0,0", "10,0", "10,10", "0,10"));
    EXPECT_THAT(modified(2), ElementsAre("10,14", "30,14", "30,34", "10,34"));
    EXPECT_THAT(modified(3), ElementsAre("5,7", "25,7", "25,27", "5,27"));
    EXPECT_THAT(modified(4), ElementsAre("5,7", "15,7", "15,17", "5,17"));
    EXPECT_THAT(modified(5), ElementsAre("0,0", "20,0", "20,20", "0,20"));
}

TEST(EnhancedRecords, FillWindingsOrEachSecondArea) {
    EXPECT_FALSE(onlyPath(test::EnhancedRecords().add(19, longs({1})).rectangle(0, 0, 9, 9)).fillsWindings);
    EXPECT_TRUE(onlyPath(test::EnhancedRecords().add(19, longs({2})).rectangle(0, 0, 9, 9)).fillsWindings);
}

// ---- the 32-bit format: objects --------------------------------------------------------------------------------------

TEST(EnhancedRecords, PensAreOfTwoKinds) {
    const auto plain = longs({1, 1, 4, 0, test::kRed}), wide = longs({1, 0, 0, 0, 0, 2, 5, 0, test::kBlue, 0, 0});
    const auto pen = onlyPath(test::EnhancedRecords().add(38, plain).select(1).rectangle(0, 0, 9, 9)).pen;
    EXPECT_EQ(pen.style, DrawnPen::Style::Dash);
    EXPECT_EQ(pen.width, 4);
    EXPECT_EQ(pen.colour, 0xFF0000U);
    const auto other = onlyPath(test::EnhancedRecords().add(95, wide).select(1).rectangle(0, 0, 9, 9)).pen;
    EXPECT_EQ(other.style, DrawnPen::Style::Dot);
    EXPECT_EQ(other.width, 5);
    EXPECT_EQ(other.colour, 0x0000FFU);
}

TEST(EnhancedRecords, DeletedAndUnknownObjectsChangeNothing) {
    const auto colourAfter = [](const test::EnhancedRecords& records) {
        auto all = records;
        return onlyPath(all.rectangle(0, 0, 9, 9)).brush.colour;
    };
    const auto both = test::EnhancedRecords().brush(1, test::kRed).brush(2, test::kBlue).select(1);
    auto removed = both, unknown = both;
    EXPECT_EQ(colourAfter(removed.add(40, longs({2})).select(2)), 0xFF0000U);
    EXPECT_EQ(colourAfter(unknown.select(3)), 0xFF0000U);
}

TEST(EnhancedRecords, PatternsFillNothing) {
    for (const std::uint32_t type : {93U, 94U})
        EXPECT_EQ(
            onlyPath(test::EnhancedRecords().add(type, longs({1, 0})).select(1).rectangle(0, 0, 9, 9)).brush.style,
            DrawnBrush::Style::None);
}

TEST(EnhancedRecords, StockObjectsNeedNoRecord) {
    const auto drawnWith = [](int number) {
        return onlyPath(test::EnhancedRecords()
                            .brush(1, test::kRed)
                            .select(1)
                            .add(38, longs({2, 1, 1, 0, test::kRed}))
                            .select(2)
                            .select(0x80000000 + number)
                            .rectangle(0, 0, 9, 9));
    };
    const DrawnColour greys[] = {0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(drawnWith(i).brush.colour, greys[i]);
        EXPECT_EQ(drawnWith(i).brush.style, DrawnBrush::Style::Solid);
        EXPECT_EQ(drawnWith(i).pen.colour, 0xFF0000U);
    }
    EXPECT_EQ(drawnWith(5).brush.style, DrawnBrush::Style::None);
    EXPECT_EQ(drawnWith(6).pen.colour, 0xFFFFFFU);
    EXPECT_EQ(drawnWith(6).pen.style, DrawnPen::Style::Solid);
    EXPECT_EQ(drawnWith(7).pen.colour, 0U);
    EXPECT_EQ(drawnWith(7).pen.style, DrawnPen::Style::Solid);
    EXPECT_EQ(drawnWith(8).pen.style, DrawnPen::Style::None);
    EXPECT_EQ(drawnWith(9).pen.colour, 0xFF0000U);
    EXPECT_EQ(drawnWith(9).brush.colour, 0xFF0000U);
}

TEST(EnhancedRecords, TextsHaveTheirFont) {
    const auto font = longs({1, -20, 0, 450, 0, 700}) + std::string("\1\1\0\0\0\0\0\0", 8) +
                      words({'A', 'r', 'i', 'a', 'l', 0, 'x'}) + std::string(50, '\0');
    const auto all = drawnBy(test::EnhancedRecords()
                                 .add(82, font)
                                 .select(1)
                                 .add(24, longs({test::kBlue}))
                                 .add(22, longs({6}))
                                 .add(83, longs({0, 0, 0, 0, 1, 0, 0, 30, 40, 3, 76, 0, 0, 0, 0, 0, 0}) + "T\xFCr"));
    ASSERT_THAT(all, SizeIs(1));
    const auto& shown = text(all[0]);
    EXPECT_EQ(point(shown.at), "30,40");
    EXPECT_EQ(shown.text, "Tür");
    expectSlantedArial(shown);
    EXPECT_EQ(shown.across, DrawnText::Across::Centre);
}

// ---- the 32-bit format: shapes ---------------------------------------------------------------------------------------

TEST(EnhancedRecords, LinesStartAtThePositionOrAtTheirFirstPoint) {
    for (const bool isShort : {false, true}) {
        const std::uint32_t more = isShort ? 83 : 0;
        EXPECT_THAT(onlyPoints(lines(4 + more, {1, 2, 3, 4}, isShort)), ElementsAre("1,2", "3,4"));
        EXPECT_THAT(onlyPoints(lines(6 + more, {1, 2, 3, 4}, isShort)), ElementsAre("90,90", "1,2", "3,4"));
        const auto polygon = onlyPath(lines(3 + more, {1, 2, -3, 4, 5, 6}, isShort));
        EXPECT_THAT(points(polygon.figures[0]), ElementsAre("1,2", "-3,4", "5,6"));
        EXPECT_TRUE(polygon.figures[0].isClosed);
    }
}

TEST(EnhancedRecords, CurvesGoThroughTheirNodes) {
    const auto curve = onlyPoints(lines(2, {0, 0, 0, 40, 80, 40, 80, 0, 80, -40, 0, -40, 0, 0}));
    ASSERT_THAT(curve, SizeIs(25));
    EXPECT_EQ(curve[0], "0,0");
    EXPECT_EQ(curve[6], "40,30");
    EXPECT_EQ(curve[12], "80,0");
    EXPECT_EQ(curve[18], "40,-30");
    EXPECT_EQ(curve[24], "0,0");
    const auto further = onlyPoints(lines(5, {90, 50, 10, 50, 10, 90}));
    ASSERT_THAT(further, SizeIs(13));
    EXPECT_EQ(further[0], "90,90");
    EXPECT_EQ(further[6], "50,60");
    EXPECT_EQ(further[12], "10,90");
    EXPECT_THAT(drawnBy(lines(2, {0, 0, 1, 1, 2, 2})), IsEmpty()); // a node is missing
}

TEST(EnhancedRecords, SeveralFiguresAreOnePath) {
    const auto fields = longs({0, 0, 0, 0, 2, 3, 2, 1});
    const auto open = onlyPath(test::EnhancedRecords().add(7, fields + longs({1, 2, 3, 4, 5, 6})));
    ASSERT_THAT(open.figures, SizeIs(2));
    EXPECT_THAT(points(open.figures[0]), ElementsAre("1,2", "3,4"));
    EXPECT_THAT(points(open.figures[1]), ElementsAre("5,6"));
    EXPECT_FALSE(open.figures[0].isClosed);
    EXPECT_EQ(open.brush.style, DrawnBrush::Style::None);
    const auto closed = onlyPath(test::EnhancedRecords().add(91, fields + words({1, 2, 3, 4, 5, 6})));
    ASSERT_THAT(closed.figures, SizeIs(2));
    EXPECT_THAT(points(closed.figures[0]), ElementsAre("1,2", "3,4"));
    EXPECT_TRUE(closed.figures[0].isClosed);
    EXPECT_EQ(closed.brush.style, DrawnBrush::Style::Solid);
}

TEST(EnhancedRecords, EllipsesAndRoundRectanglesFillTheirBox) {
    const auto ellipse = onlyPoints(test::EnhancedRecords().add(42, longs({20, 10, 80, 90})));
    ASSERT_THAT(ellipse, SizeIs(73));
    EXPECT_EQ(ellipse[0], "80,50");
    EXPECT_EQ(ellipse[18], "50,90");
    const auto round = onlyPoints(test::EnhancedRecords().add(44, longs({20, 10, 80, 90, 20, 40})));
    ASSERT_THAT(round, SizeIs(76));
    EXPECT_EQ(round[0], "80,70");
    EXPECT_EQ(round[18], "70,90");
}

TEST(EnhancedRecords, ArcsTurnAsTheContextSays) {
    const auto fields = longs({10, 10, 90, 90, 99, 50, 50, 0});
    const auto arc = [&](std::uint32_t type, int direction) {
        return arcOf(test::EnhancedRecords().add(27, longs({0, 0})).add(57, longs({direction})).add(type, fields));
    };
    EXPECT_EQ(arc(45, 1), "90,50 78,22 50,10");
    EXPECT_EQ(arc(45, 2), "90,50 22,78 50,10");
    EXPECT_EQ(arc(46, 1), "90,50 78,22 50,10 closed filled");
    EXPECT_EQ(arc(47, 1), "90,50 76,19 50,50 closed filled");
    EXPECT_EQ(arc(55, 1), "0,0 78,22 50,10");
}

TEST(EnhancedRecords, AnArcInAFlatBoxIsALine) {
    const auto arc = [](std::initializer_list<std::int64_t> box) {
        return arcOf(test::EnhancedRecords().add(45, longs(box) + longs({50, 0, 50, 99})));
    };
    EXPECT_EQ(arc({50, 10, 50, 90}), "50,50 50,50 50,50");
    EXPECT_EQ(arc({10, 50, 90, 50}), "90,50 10,50 90,50");
}

TEST(EnhancedRecords, PixelsAreSmallBoxes) {
    const auto pixel = onlyPath(test::EnhancedRecords().add(15, longs({10, 20, test::kRed})));
    EXPECT_THAT(points(pixel.figures[0]), ElementsAre("10,20", "11,20", "11,21", "10,21"));
    EXPECT_EQ(pixel.brush.colour, 0xFF0000U);
}

TEST(EnhancedRecords, PathsAreFilledOrStrokedOrBoth) {
    const auto drawing = [](std::uint32_t use) {
        return onlyPath(
            test::EnhancedRecords().add(59, "").rectangle(0, 0, 9, 9).add(60, "").add(use, longs({0, 0, 0, 0})));
    };
    EXPECT_EQ(drawing(62).pen.style, DrawnPen::Style::None);
    EXPECT_EQ(drawing(62).brush.style, DrawnBrush::Style::Solid);
    EXPECT_EQ(drawing(63).pen.style, DrawnPen::Style::Solid);
    EXPECT_EQ(drawing(63).brush.style, DrawnBrush::Style::Solid);
    EXPECT_EQ(drawing(64).pen.style, DrawnPen::Style::Solid);
    EXPECT_EQ(drawing(64).brush.style, DrawnBrush::Style::None);
}

TEST(EnhancedRecords, ALineThatFollowsAnotherExtendsItsFigure) {
    const auto path = [](const std::function<void(test::EnhancedRecords&)>& between) {
        test::EnhancedRecords records;
        records.add(59, "").add(27, longs({0, 0})).add(54, longs({10, 0}));
        between(records);
        return onlyPath(records.add(54, longs({10, 10})).add(60, "").add(64, longs({0, 0, 0, 0})));
    };
    const auto together = path([](auto&) {});
    ASSERT_THAT(together.figures, SizeIs(1));
    EXPECT_THAT(points(together.figures[0]), ElementsAre("0,0", "10,0", "10,10"));
    const auto closed = path([](auto& records) { records.add(61, ""); });
    ASSERT_THAT(closed.figures, SizeIs(2));
    EXPECT_TRUE(closed.figures[0].isClosed);
    EXPECT_THAT(points(closed.figures[1]), ElementsAre("10,0", "10,10"));
    EXPECT_FALSE(closed.figures[1].isClosed);
    const auto moved = path([](auto& records) { records.add(27, longs({5, 5})); });
    ASSERT_THAT(moved.figures, SizeIs(2));
    EXPECT_THAT(points(moved.figures[1]), ElementsAre("5,5", "10,10"));
    EXPECT_THAT(path([](auto& records) { records.rectangle(1, 1, 2, 2); }).figures, SizeIs(3));
    EXPECT_THAT(path([](auto& records) { records.add(59, ""); }).figures, SizeIs(1));
}

TEST(EnhancedRecords, AnAbortedPathIsForgotten) {
    const auto all =
        drawnBy(test::EnhancedRecords().add(59, "").rectangle(0, 0, 9, 9).add(68, "").rectangle(1, 1, 5, 5));
    ASSERT_THAT(all, SizeIs(1));
    EXPECT_EQ(points(path(all[0]).figures[0])[0], "1,1");
}

// ---- the 32-bit format: bitmaps --------------------------------------------------------------------------------------

TEST(EnhancedRecords, ABoxWithoutABitmapIsFilledByAnOperation) {
    const auto box = longs({0, 0, 0, 0, 1, 2, 3, 4, 0x00F00021, 0, 0}) + std::string(32, '\0') + longs({0, 0, 0, 0});
    const auto filled = onlyPath(test::EnhancedRecords().brush(1, test::kGreen).select(1).add(76, box));
    EXPECT_THAT(points(filled.figures[0]), ElementsAre("1,2", "4,2", "4,6", "1,6"));
    EXPECT_EQ(filled.brush.colour, 0x00FF00U);
}

TEST(EnhancedRecords, PartsOfBitmapsAreStretched) {
    const auto dib = test::fourPixels();
    const auto places = [](int at) { return longs({at, 40, at + 40, 16}); };
    const auto shown = [&](std::uint32_t type, const std::string& fields) {
        const auto all = drawnBy(test::EnhancedRecords().add(type, fields + dib));
        EXPECT_THAT(all, SizeIs(1)) << type;
        if (all.empty()) return std::string();
        const auto& one = std::get<DrawnBitmap>(all[0]);
        const auto number = [](double value) { return std::to_string(std::lround(value)); };
        return point(one.from) + " " + point(one.to) + " of " + number(one.left) + "," + number(one.top) + " " +
               number(one.width) + "x" + number(one.height);
    };
    const auto transfer = longs({0, 0, 0, 0, 10, 20, 2, 1, 0xCC0020, 0, 1}) + std::string(32, '\0');
    EXPECT_EQ(shown(76, transfer + places(100)), "10,20 12,21 of 0,1 2x1");
    EXPECT_EQ(shown(77, transfer + places(108) + longs({1, 1})), "10,20 12,21 of 0,1 1x1");
    const auto bits = longs({0, 0, 0, 0, 10, 20, 0, 0, 2, 1});
    EXPECT_EQ(shown(80, bits + places(76) + longs({0, 0, 2})), "10,20 12,21 of 0,1 2x1");
    EXPECT_EQ(shown(81, bits + places(80) + longs({0, 0xCC0020, 40, 30})), "10,20 50,50 of 0,1 2x1");
}
