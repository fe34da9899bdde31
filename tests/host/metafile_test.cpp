// Records of metafiles as a drawing.
#include "tests/host/metafile_drawing.h"
#include "tests/support/metafile_bytes.h"

using namespace host;
using test::drawn;
using test::path;
using test::points;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Metafiles, APlaceableFileHasTheSizeOfItsBox) {
    const auto read = readMetafile(test::WindowsRecords().rectangle(100, 200, 300, 400).file(1920, 960));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->width, 192);
    EXPECT_EQ(read->height, 96);
    ASSERT_THAT(read->drawn, SizeIs(1));
    EXPECT_THAT(points(path(read->drawn[0]).figures[0]), ElementsAre("10,20", "30,20", "30,40", "10,40"));
    EXPECT_TRUE(path(read->drawn[0]).figures[0].isClosed);
}

TEST(Metafiles, AWindowIsShownInTheBox) {
    const auto all = drawn(test::WindowsRecords()
                               .add(0x020B, test::words({100, 100}))
                               .add(0x020C, test::words({-100, 100}))
                               .rectangle(110, 90, 120, 80)
                               .file(960, 960));
    ASSERT_THAT(all, SizeIs(1));
    EXPECT_THAT(points(path(all[0]).figures[0]), ElementsAre("10,10", "19,10", "19,19", "10,19"));
}

TEST(Metafiles, AFileWithoutABoxHasTheSizeOfItsWindow) {
    const auto read = readMetafile(test::WindowsRecords().add(0x020C, test::words({50, 200})).plain());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->width, 200);
    EXPECT_EQ(read->height, 50);
    EXPECT_FALSE(readMetafile(test::WindowsRecords().rectangle(1, 1, 2, 2).plain()));
}

TEST(Metafiles, ANewObjectGetsTheLowestFreeNumber) {
    const auto all = drawn(test::WindowsRecords()
                               .brush(test::kRed)
                               .pen(5, 0)
                               .remove(0)
                               .brush(test::kBlue)
                               .brush(test::kGreen)
                               .select(0)
                               .rectangle(0, 0, 10, 10)
                               .select(2)
                               .select(1)
                               .rectangle(0, 0, 10, 10)
                               .file(100, 100));
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_EQ(path(all[0]).brush.colour, 0x0000FFU);
    EXPECT_EQ(path(all[0]).pen.style, DrawnPen::Style::Solid);
    EXPECT_EQ(path(all[1]).brush.colour, 0x00FF00U);
    EXPECT_EQ(path(all[1]).pen.style, DrawnPen::Style::None);
}

TEST(Metafiles, ASavedContextIsRestored) {
    const auto all = drawn(test::EnhancedRecords()
                               .brush(1, test::kRed)
                               .add(33, "")
                               .select(1)
                               .rectangle(0, 0, 9, 9)
                               .add(34, test::longs({-1}))
                               .add(34, test::longs({-1}))
                               .rectangle(0, 0, 9, 9)
                               .file(1, 1));
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_EQ(path(all[0]).brush.colour, 0xFF0000U);
    EXPECT_EQ(path(all[1]).brush.colour, 0xFFFFFFU);
}

TEST(Metafiles, RecordsWithoutAnEffectAreSkipped) {
    const auto windows = test::WindowsRecords().add(0x0FFF, "any").rectangle(0, 0, 9, 9).file(100, 100);
    const auto enhanced = test::EnhancedRecords().add(70, "comment").add(9999, "").rectangle(0, 0, 9, 9).file(1, 1);
    EXPECT_THAT(drawn(windows), SizeIs(1));
    EXPECT_THAT(drawn(enhanced), SizeIs(1));
}

TEST(Metafiles, AWrongLengthEndsTheDrawing) {
    for (const auto size : {0, 1, 2, 0x7FFFFFFF}) {
        auto bytes = test::WindowsRecords().rectangle(0, 0, 9, 9).file(100, 100);
        bytes.replace(22 + 18 + 14, 4, test::longs({size}));
        EXPECT_THAT(drawn(bytes), SizeIs(1)) << size;
    }
    const auto whole = test::EnhancedRecords().rectangle(0, 0, 9, 9).rectangle(0, 0, 9, 9).file(1, 1);
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_THAT(drawn(whole.substr(0, size)), SizeIs(size < 88 + 24 ? 0 : size < 88 + 48 ? 1 : 2)) << size;
}

TEST(Metafiles, MorePointsThanTheRecordHasAreNone) {
    const auto polygon = drawn(test::WindowsRecords().add(0x0324, test::words({3, 1, 1, 2, 2})).file(100, 100));
    ASSERT_THAT(polygon, SizeIs(1));
    EXPECT_THAT(path(polygon[0]).figures[0].points, IsEmpty());
    const auto several =
        drawn(test::EnhancedRecords().add(8, test::longs({0, 0, 0, 0, 0x7FFFFFFF, 3, 1, 1})).file(1, 1));
    ASSERT_THAT(several, SizeIs(1));
    EXPECT_THAT(path(several[0]).figures, IsEmpty());
}

TEST(Metafiles, AHugeBitmapOfFewBytesIsSkipped) {
    auto bitmap = test::fourPixels();
    const auto with = [&] {
        return test::WindowsRecords()
            .add(0x0F43, test::longs({0xCC0020}) + test::words({0, 2, 2, 0, 0, 90, 90, 0, 0}) + bitmap)
            .file(100, 100);
    };
    EXPECT_THAT(drawn(with()), SizeIs(1));
    bitmap.replace(4, 8, test::longs({30000, 30000}));
    EXPECT_THAT(drawn(with()), IsEmpty());
}

TEST(Metafiles, AFileWithTooManyPointsIsDrawnInPart) {
    test::WindowsRecords circles;
    for (int i = 0; i < 5000; ++i) circles.add(0x0418, test::words({9, 9, 0, 0}));
    const auto all = drawn(circles.file(100, 100));
    std::size_t count = 0;
    for (const auto& one : all) count += path(one).figures[0].points.size();
    EXPECT_GE(count, kMostMetafilePoints);
    EXPECT_LE(count, kMostMetafilePoints + 100);
}

TEST(Metafiles, LinesOfAPathAreOneFigure) {
    const auto all = drawn(test::EnhancedRecords()
                               .add(59, "")
                               .add(27, test::longs({10, 10}))
                               .add(54, test::longs({20, 10}))
                               .add(54, test::longs({20, 20}))
                               .add(61, "")
                               .add(60, "")
                               .add(62, test::longs({0, 0, 0, 0}))
                               .file(1, 1));
    ASSERT_THAT(all, SizeIs(1));
    ASSERT_THAT(path(all[0]).figures, SizeIs(1));
    EXPECT_THAT(points(path(all[0]).figures[0]), ElementsAre("10,10", "20,10", "20,20"));
    EXPECT_TRUE(path(all[0]).figures[0].isClosed);
    EXPECT_EQ(path(all[0]).pen.style, DrawnPen::Style::None);
}

TEST(Metafiles, TextsAreDecoded) {
    const auto ansi = drawn(test::WindowsRecords()
                                .add(0x012E, test::words({24 | 6}))
                                .add(0x0521, test::words({3}) + std::string("T\xFCr\0", 4) + test::words({20, 10}))
                                .file(960, 960));
    ASSERT_THAT(ansi, SizeIs(1));
    const auto& text = std::get<DrawnText>(ansi[0]);
    EXPECT_EQ(text.text, "Tür");
    EXPECT_EQ(text.at.x, 1);
    EXPECT_EQ(text.at.y, 2);
    EXPECT_EQ(text.across, DrawnText::Across::Centre);
    EXPECT_EQ(text.down, DrawnText::Down::Baseline);
    const auto wide = drawn(test::EnhancedRecords()
                                .add(84, test::longs({0, 0, 0, 0, 1, 0, 0, 30, 40, 3, 76, 0, 0, 0, 0, 0, 0}) +
                                             test::words({'A', 0xD83D, 0xDE00}))
                                .file(1, 1));
    ASSERT_THAT(wide, SizeIs(1));
    EXPECT_EQ(std::get<DrawnText>(wide[0]).text, "A\xF0\x9F\x98\x80");
    EXPECT_EQ(std::get<DrawnText>(wide[0]).at.y, 40);
}

TEST(Metafiles, OtherBytesAreNone) {
    for (const char* const bytes : {"", "BM", "GIF89a", "\xd7\xcd\xc6\x9a", "\1"}) EXPECT_THAT(drawn(bytes), IsEmpty());
}
