// Metafiles as pictures of forms. Pictures are compared by where a colour is.
#include "Apps/workbench/properties/metafile_painter.h"
#include "Apps/workbench/properties/picture_formats.h"
#include "Host/files/resource_file.h"
#include "tests/support/metafile_bytes.h"
#include "tests/workbench/designer_desktop.h"

namespace {

/// One letter for the colour of a pixel.
char colourAt(const QImage& image, int x, int y) {
    const auto colour = image.pixelColor(x, y);
    if (colour.alpha() < 100) return ' ';
    const bool red = colour.red() > 150, green = colour.green() > 150, blue = colour.blue() > 150;
    if (red && green && blue) return 'W';
    return red ? 'R' : green ? 'G' : blue ? 'B' : 'K';
}
/// The colours of these points, in their order.
std::string colours(const QImage& image, std::initializer_list<QPoint> points) {
    std::string all;
    for (const auto& at : points) all += colourAt(image, at.x(), at.y());
    return all;
}
test::WindowsRecords withoutPen() { return test::WindowsRecords().pen(5, 0).select(0); }

QImage painted(const test::WindowsRecords& records) { return workbench::paintedMetafile(records.file(960, 960)); }
QImage painted(const test::EnhancedRecords& records) { return workbench::paintedMetafile(records.file(1, 1)); }

const test::EnhancedRecords kEnhanced = test::EnhancedRecords().select(test::kNoPen).brush(1, test::kRed).select(1);

class MetafileDesigns : public test::DesignerDesktop {};

} // namespace

TEST(PaintedMetafiles, AreasHaveTheColourOfTheirBrush) {
    const auto image = painted(withoutPen()
                                   .brush(test::kRed)
                                   .select(1)
                                   .rectangle(100, 100, 400, 400)
                                   .brush(test::kBlue)
                                   .select(2)
                                   .add(0x0418, test::words({900, 900, 500, 500})));
    EXPECT_EQ(image.size(), QSize(96, 96));
    EXPECT_EQ(colours(image, {{5, 5}, {20, 20}, {38, 38}, {70, 70}, {52, 52}, {70, 52}}), " RRB B");
}

TEST(PaintedMetafiles, LinesAreDrawnWithTheirPen) {
    auto records = test::WindowsRecords();
    records.add(0x02FA, test::words({0, 40, 0}) + test::longs({test::kGreen})).select(0);
    records.add(0x0214, test::words({100, 100})).add(0x0213, test::words({100, 800}));
    records.add(0x0325, test::words({3, 800, 100, 800, 800, 100, 800}));
    const auto image = painted(records);
    EXPECT_EQ(colours(image, {{40, 10}, {80, 40}, {40, 80}, {40, 40}, {10, 40}}), "GGG  ");
}

TEST(PaintedMetafiles, TheSecondAreaIsAHole) {
    auto records = withoutPen().brush(test::kRed).select(1);
    records.add(0x0538,
                test::words({2, 4, 4, 100, 100, 900, 100, 900, 900, 100, 900, 300, 300, 700, 300, 700, 700, 300, 700}));
    EXPECT_EQ(colours(painted(records), {{20, 20}, {48, 48}, {80, 48}}), "R R");
}

TEST(PaintedMetafiles, AnArcRunsAgainstTheClock) {
    auto records = withoutPen().brush(test::kRed).select(1);
    // from the right to the top
    records.add(0x081A, test::words({0, 480, 480, 960, 960, 960, 0, 0}));
    EXPECT_EQ(colours(painted(records), {{65, 30}, {30, 30}, {30, 65}, {65, 65}}), "R   ");
}

TEST(PaintedMetafiles, BitmapsAreStretchedAndMirrored) {
    const auto stretched = [](int left, int width) {
        return painted(test::WindowsRecords().add(
            0x0F43, test::longs({0xCC0020}) + test::words({0, 2, 2, 0, 0, 960, width, 0, left}) + test::fourPixels()));
    };
    EXPECT_EQ(colours(stretched(0, 960), {{5, 5}, {90, 5}, {5, 90}, {90, 90}}), "RGBW");
    EXPECT_EQ(colours(stretched(960, -960), {{5, 5}, {90, 5}, {5, 90}, {90, 90}}), "GRWB");
}

TEST(PaintedMetafiles, APartOfABitmapIsCountedFromBelow) {
    const auto image = painted(test::WindowsRecords().add(
        0x0F43, test::longs({0xCC0020}) + test::words({0, 1, 2, 0, 0, 960, 960, 0, 0}) + test::fourPixels()));
    EXPECT_EQ(colours(image, {{5, 48}, {90, 48}}), "BW");
}

TEST(PaintedMetafiles, TextsAreDrawnAtTheirPlace) {
    auto records = test::WindowsRecords();
    records.add(0x02FB, test::words({-400, 0, 0, 0, 700}) + std::string(8, '\0') + "Tahoma").select(0);
    records.add(0x0209, test::longs({test::kBlue})).add(0x0521, test::words({2}) + "MM" + test::words({480, 100}));
    const auto image = painted(records);
    int above = 0, below = 0;
    for (int y = 0; y < 96; ++y)
        for (int x = 0; x < 96; ++x)
            if (colourAt(image, x, y) == 'B') ++(y < 48 ? above : below);
    EXPECT_EQ(above, 0);
    EXPECT_GT(below, 100);
}

TEST(PaintedMetafiles, EnhancedRecordsAreDrawnInTheFrame) {
    auto records = kEnhanced;
    records.rectangle(10, 10, 40, 40).brush(2, test::kBlue).select(2);
    records.add(86, test::longs({0, 0, 0, 0, 3}) + test::words({50, 90, 90, 90, 70, 50}));
    const auto image = painted(records);
    EXPECT_EQ(image.size(), QSize(96, 96));
    EXPECT_EQ(colours(image, {{25, 25}, {45, 45}, {70, 80}, {52, 55}}), "R B ");
}

TEST(PaintedMetafiles, EnhancedWindowsAreMapped) {
    auto records = kEnhanced;
    records.add(17, test::longs({8})).add(9, test::longs({1000, 1000})).add(11, test::longs({96, -96}));
    records.add(12, test::longs({0, 96})).rectangle(0, 0, 500, 500);
    EXPECT_EQ(colours(painted(records), {{20, 70}, {20, 20}, {70, 70}}), "R  ");
}

TEST(PaintedMetafiles, EnhancedBitmapsAreDrawn) {
    const auto bitmap = test::fourPixels();
    const auto image = painted(test::EnhancedRecords().add(
        81, test::longs({0, 0, 0, 0, 0, 0, 0, 0, 2, 2, 80, 40, 120, 16, 0, 0xCC0020, 96, 96}) + bitmap));
    EXPECT_EQ(colours(image, {{5, 5}, {90, 5}, {5, 90}, {90, 90}}), "RGBW");
}

TEST(PaintedMetafiles, OthersAreNull) {
    EXPECT_TRUE(workbench::paintedMetafile("").isNull());
    EXPECT_TRUE(workbench::paintedMetafile(kEnhanced.file(1, 1).substr(0, 60)).isNull());
    EXPECT_FALSE(workbench::thumbnail(kEnhanced.file(4, 2), {20, 20}).isNull());
    EXPECT_EQ(workbench::thumbnail(kEnhanced.file(4, 2), {20, 20}).size(), QSize(20, 10));
}

TEST_F(MetafileDesigns, AreDrawnOnControlsAndPreviewed) {
    auto records = kEnhanced;
    folder.write("frmMain.frx", host::pictureRecord(records.rectangle(0, 0, 48, 96).file(1, 1), false));
    openForm("   Begin VB.Image imgLogo \n      Height          =   600\n      Left            =   120\n      Picture  "
             "       =   \"frmMain.frx\":0000\n      Stretch         =   -1  'True\n      Top             =   120\n"
             "      Width           =   600\n   End\n"
             "   Begin VB.PictureBox picLogo \n      Height          =   900\n      Left            =   1200\n      "
             "Picture         =   \"frmMain.frx\":0000\n      Top             =   120\n      Width           =   900\n"
             "   End\n");
    const auto image = canvas().grab().toImage();
    for (const auto* name : {"imgLogo", "picLogo"}) {
        const auto place = placeOf(name);
        const auto at = pointOn({place.left() + place.width() / 4, place.center().y()});
        EXPECT_EQ(colourAt(image, at.x(), at.y()), 'R') << name;
    }
    const auto beside = pointOn({placeOf("imgLogo").right() - 8, placeOf("imgLogo").center().y()});
    EXPECT_NE(colourAt(image, beside.x(), beside.y()), 'R');
    clickOn("imgLogo");
    EXPECT_EQ(shown("Picture"), "(Metafile)");
    EXPECT_FALSE(valueCell("Picture").data(Qt::DecorationRole).isNull());
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        settle();
        EXPECT_TRUE(window().grab().save(QString(FERNWICK_BINARY_DIR "/metafile-%1.png").arg(name)));
    }
}
