// The scroll bars of the zoom window, in twips.
#include "zoom_world.h"
#include <random>

using fernwick::ControlPlace;
using fernwick::WindowPoint;
using testing::ElementsAre;
using testing::IsEmpty;

namespace fernwick {

inline void PrintTo(const ControlPlace& place, std::ostream* to) {
    *to << place.Left << "," << place.Top << " " << place.Width << "x" << place.Height;
}

} // namespace fernwick

namespace {

constexpr int kBar = fernwick::udocZoomWindow::kBarSize;
constexpr int kBand = fernwick::udocZoomWindow::kFrameHeight;

class ZoomBars : public testing::Test, protected test::ZoomWorld {
protected:
    fernwick::ScrollBar& horizontal() { return document->HScroll1; }
    fernwick::ScrollBar& vertical() { return document->VScroll1; }
    /// Where a press at this place of the zoom window lands in the designer.
    WindowPoint lands(int x, int y) {
        windows.messages.clear();
        send(fernwick::WM_MOUSEMOVE, x, y);
        return places(surface, fernwick::WM_MOUSEMOVE).at(0);
    }
};

TEST_F(ZoomBars, AFormThatFitsHasNone) {
    follow();
    EXPECT_FALSE(horizontal().Visible() || vertical().Visible());
    EXPECT_FALSE(document->HPlug.Visible() || document->VPlug.Visible());
    EXPECT_EQ(picture(), (fernwick::WindowRect{0, 30, 400, 330}));
    EXPECT_EQ(document->GetXOffset(), 0);
    EXPECT_EQ(document->GetYOffset(), -30);
}

TEST_F(ZoomBars, TheBandIsAsWideAsTheDocument) {
    open(600, 600);
    EXPECT_EQ(document->Frame1.Place(), (ControlPlace{0, 0, 9000, kBand}));
    resize(400, 500);
    EXPECT_EQ(document->Frame1.Place(), (ControlPlace{0, 0, 6000, kBand}));
}

TEST_F(ZoomBars, AFormThatFitsExactlyHasNone) {
    follow(400, 330);
    EXPECT_FALSE(horizontal().Visible() || vertical().Visible());
    resize(399, 330);
    EXPECT_TRUE(horizontal().Visible());
    EXPECT_FALSE(vertical().Visible());
    resize(400, 329);
    EXPECT_FALSE(horizontal().Visible());
    EXPECT_TRUE(vertical().Visible());
}

TEST_F(ZoomBars, AWideFormHasAHorizontalOne) {
    follow(300, 600);
    EXPECT_EQ(horizontal().Place(), (ControlPlace{0, 9000 - kBar, 4500, kBar}));
    EXPECT_EQ(horizontal().Min(), 0);
    EXPECT_EQ(horizontal().Max(), 6000 - 4500);
    EXPECT_EQ(horizontal().LargeChange(), 4500);
    EXPECT_FALSE(document->HPlug.Visible());
    EXPECT_FALSE(vertical().Visible());
}

TEST_F(ZoomBars, ATallFormHasAVerticalOne) {
    follow(600, 200);
    EXPECT_EQ(vertical().Place(), (ControlPlace{9000 - kBar, kBand, kBar, 3000 - kBand}));
    EXPECT_EQ(vertical().Min(), -450);
    EXPECT_EQ(vertical().Max(), 4500 - 3000);
    EXPECT_EQ(vertical().LargeChange(), 3000 - kBand);
    EXPECT_FALSE(document->VPlug.Visible());
    EXPECT_FALSE(horizontal().Visible());
}

TEST_F(ZoomBars, BothLeaveASquareAtTheCorner) {
    follow(300, 200);
    EXPECT_EQ(horizontal().Place(), (ControlPlace{0, 3000 - kBar, 4500 - kBar, kBar}));
    EXPECT_EQ(horizontal().Max(), 6000 - 4500 + kBar);
    EXPECT_EQ(vertical().Place(), (ControlPlace{4500 - kBar, kBand, kBar, 3000 - kBar - kBand}));
    EXPECT_EQ(vertical().Max(), 4500 - 3000 + kBar);
    const ControlPlace corner{4500 - kBar, 3000 - kBar, kBar, kBar};
    EXPECT_TRUE(document->HPlug.Visible() && document->VPlug.Visible());
    EXPECT_EQ(document->HPlug.Place(), corner);
    EXPECT_EQ(document->VPlug.Place(), corner);
}

TEST_F(ZoomBars, ZoomOneHasBarsToo) {
    follow(150, 100);
    level(1);
    EXPECT_EQ(horizontal().Max(), 3000 - 2250 + kBar);
    EXPECT_EQ(vertical().Max(), 2250 - 1500 + kBar);
}

TEST_F(ZoomBars, TheLowestValueIsThePlaceWithoutABar) {
    follow();
    const auto without = picture();
    resize(600, 200);
    ASSERT_TRUE(vertical().Visible());
    EXPECT_EQ(vertical().Value(), -450);
    document->UpdateDisplay();
    EXPECT_EQ(picture(), without);
    vertical().Value(0);
    EXPECT_EQ(picture().top, 0);
    vertical().Value(-450);
    EXPECT_EQ(picture(), without);
}

TEST_F(ZoomBars, ADocumentNarrowerThanABarKeepsTheMaximum) {
    follow(300, 600);
    const int before = horizontal().Max();
    resize(kBar / 15 - 1, 600);
    EXPECT_EQ(horizontal().Place(), (ControlPlace{0, 9000 - kBar, kBar - 15, kBar}));
    EXPECT_EQ(horizontal().Max(), before);
    EXPECT_EQ(horizontal().LargeChange(), kBar - 15);
}

TEST_F(ZoomBars, ADocumentLowerThanBandAndBarKeepsTheMaximum) {
    follow(600, 200);
    const int before = vertical().Max();
    resize(600, (kBand + kBar) / 15 - 1);
    EXPECT_EQ(vertical().Place(), (ControlPlace{9000 - kBar, kBand, kBar, kBand + kBar - 15}));
    EXPECT_EQ(vertical().Max(), before);
    EXPECT_EQ(vertical().LargeChange(), kBar - 15);
    resize(600, 10);
    EXPECT_EQ(vertical().LargeChange(), 1);
}

TEST_F(ZoomBars, ADocumentThatBarsJustFitHasBarsOfNoLength) {
    follow(300, 600);
    resize(kBar / 15, 200);
    EXPECT_EQ(horizontal().Place().Width, 0);
    EXPECT_EQ(horizontal().Max(), 6000);
    resize(300, (kBand + kBar) / 15);
    EXPECT_EQ(vertical().Place().Height, 0);
    EXPECT_EQ(vertical().Max(), 4500 - kBand);
}

TEST_F(ZoomBars, TheSquareGoesWithEitherBar) {
    follow(300, 200);
    resize(300, 600);
    EXPECT_TRUE(horizontal().Visible());
    EXPECT_FALSE(document->HPlug.Visible() || document->VPlug.Visible());
    resize(300, 200);
    EXPECT_TRUE(document->HPlug.Visible() && document->VPlug.Visible());
    resize(600, 200);
    EXPECT_TRUE(vertical().Visible());
    EXPECT_FALSE(document->HPlug.Visible() || document->VPlug.Visible());
}

TEST_F(ZoomBars, AnArrowMovesOnePixelOfTheDesigner) {
    follow(300, 200);
    EXPECT_EQ(horizontal().SmallChange(), 2 * 15);
    level(5);
    EXPECT_EQ(horizontal().SmallChange(), 5 * 15);
    EXPECT_EQ(vertical().SmallChange(), 5 * 15);
    const auto before = lands(10, 100);
    horizontal().Value(horizontal().Value() + horizontal().SmallChange());
    vertical().Value(vertical().Value() + vertical().SmallChange());
    EXPECT_EQ(lands(10, 100), (WindowPoint{before.x + 1, before.y + 1}));
}

// ---- scrolling ----

TEST_F(ZoomBars, AScrolledPictureMoves) {
    follow(300, 200);
    horizontal().Value(600);
    vertical().Value(300);
    EXPECT_EQ(picture(), (fernwick::WindowRect{-40, -20, 360, 280}));
    EXPECT_EQ(document->GetXOffset(), 40);
    EXPECT_EQ(document->GetYOffset(), 20);
}

TEST_F(ZoomBars, ValuesAreRoundedToPixelsWithHalvesToEven) {
    screen.x = screen.y = 10;
    follow(200, 100);
    horizontal().Value(25);
    EXPECT_EQ(document->GetXOffset(), 2);
    horizontal().Value(35);
    EXPECT_EQ(document->GetXOffset(), 4);
}

TEST_F(ZoomBars, OtherScreensHaveOtherPixels) {
    screen.x = screen.y = 12;
    follow();
    EXPECT_EQ(document->GetYOffset(), -38) << "37.5 rounded to even";
}

TEST_F(ZoomBars, ClicksFollowTheBars) {
    follow(300, 200);
    horizontal().Value(600);
    vertical().Value(300);
    EXPECT_EQ(lands(10, 50), (WindowPoint{25, 35}));
}

TEST_F(ZoomBars, ThePictureFollowsTheThumb) {
    follow(300, 200);
    horizontal().drag(300);
    EXPECT_EQ(picture().left, -20);
    vertical().drag(0);
    EXPECT_EQ(picture().top, 0);
    EXPECT_EQ(lands(0, 0), (WindowPoint{10, 0}));
}

TEST_F(ZoomBars, TheRefreshPrecedesTheNewMapping) {
    follow(300, 200);
    int within = 0;
    windows.onTransfer = [&] { within = lands(10, 100).x; };
    horizontal().Value(300);
    EXPECT_EQ(within, 5);
    EXPECT_EQ(lands(10, 100).x, 15);
    windows.onTransfer = [&] { within = lands(10, 100).y; };
    vertical().Value(150);
    EXPECT_EQ(within, 35);
    EXPECT_EQ(lands(10, 100).y, 55);
}

// ---- the mapping follows the picture ----

TEST_F(ZoomBars, AClickLandsWhereThePictureIsOnceTheBarHasGone) {
    follow(300, 200);
    horizontal().Value(600);
    vertical().Value(300);
    windows.log.clear();
    surfaceIs(100, 60);
    document->UpdateDisplay();
    EXPECT_FALSE(horizontal().Visible() || vertical().Visible());
    EXPECT_EQ(lands(20, kTop + 20), (WindowPoint{10, 10}));
}

TEST_F(ZoomBars, OneRefreshFollowsChangedOffsets) {
    loop.timersAreDue = false;
    follow(300, 200);
    for (int i = 0; i < 2; ++i) {
        horizontal().Value(600);
        resize(600, 600);
        resize(300, 200);
        vertical().Value(300);
        resize(600, 600);
        windows.log.clear();
        loop.turn();
        loop.turn();
        EXPECT_THAT(windows.log, ElementsAre("picture 0,30-400,330"));
        resize(300, 200);
    }
}

TEST_F(ZoomBars, LowerBoundsMoveTheValueInsideAndRaiseOneChange) {
    follow(300, 200);
    horizontal().Value(horizontal().Max());
    int changes = 0;
    const auto changed = horizontal().Change.connect([&] { ++changes; });
    resize(350, 200);
    EXPECT_EQ(horizontal().Value(), horizontal().Max());
    EXPECT_EQ(horizontal().Max(), 6000 - 5250 + kBar);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(document->GetXOffset(), (6000 - 5250 + kBar) / 15);
    EXPECT_EQ(lands(1, kTop).x, (document->GetXOffset() + 1) / 2);
}

TEST_F(ZoomBars, ABarThatAppearsShowsWhereThePictureIs) {
    follow(300, 200);
    horizontal().Value(600);
    vertical().Value(300);
    resize(600, 600);
    EXPECT_EQ(horizontal().Value(), 0);
    EXPECT_EQ(vertical().Value(), -450);
    int changes = 0;
    const auto changed = vertical().Change.connect([&] { ++changes; });
    resize(300, 200);
    EXPECT_EQ(horizontal().Value(), 0);
    EXPECT_EQ(vertical().Value(), -450);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(document->GetYOffset(), -30);
}

TEST_F(ZoomBars, ABarThatIsThereFromTheStartPutsThePictureUnderTheBand) {
    zoom.createZoomWindow();
    document = basic::cast<fernwick::udocZoomWindow>(zoom.ZoomDocument);
    windows.of(zoomHwnd).document = document.shared().get();
    resize(600, 20);
    EXPECT_TRUE(vertical().Visible());
    EXPECT_EQ(document->GetYOffset(), -30);
}

/// Whatever the sizes, the level and the bars: a press on the corner of a drawn pixel reaches that pixel.
TEST_F(ZoomBars, AClickOnADrawnPixelHitsThePixel) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto any = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    windows.close(handle); // which would receive the press instead
    follow();
    for (int i = 0; i < 500; ++i) {
        level(any(1, 5));
        surfaceIs(any(1, 400), any(1, 400));
        resize(any(5, 700), any(5, 700));
        document->UpdateDisplay();
        if (horizontal().Visible()) horizontal().Value(any(horizontal().Min(), horizontal().Max()));
        if (vertical().Visible()) vertical().drag(any(vertical().Min(), vertical().Max()));
        if (any(0, 1) == 0) level(any(1, 5));
        loop.turn();
        const int factor = document->Combo1.ListIndex() + 1, x = any(0, 399), y = any(0, 399);
        ASSERT_EQ(lands(picture().left + x * factor, picture().top + y * factor), (WindowPoint{x, y})) << i;
    }
}

TEST_F(ZoomBars, LargeFormsAreClampedWithoutAReport) {
    surfaceIs(640, 480);
    follow(300, 300);
    level(5);
    EXPECT_EQ(horizontal().Max(), 32767);
    surfaceIs(30000, 20000);
    document->UpdateDisplay();
    EXPECT_EQ(horizontal().Max(), 32767);
    EXPECT_EQ(vertical().Max(), 32767);
    resize(3000, 3000);
    EXPECT_EQ(horizontal().LargeChange(), 32767);
    EXPECT_EQ(vertical().LargeChange(), 32767);
    EXPECT_THAT(errors.seen, IsEmpty());
}

} // namespace
