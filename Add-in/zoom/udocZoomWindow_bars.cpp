// The scroll bars of the zoom window. All places and values are in twips.
#include "Add-in/zoom/udocZoomWindow.h"
#include <cmath>

namespace fernwick {

namespace {

/// Halves to even.
std::int32_t rounded(float value) { return std::int32_t(std::nearbyint(value)); }

} // namespace

void udocZoomWindow::ValidateScrollBars() {
    if (!services_) return;
    Procedure here{services_->errors, "udocZoomWindow.ValidateScrollBars"};
    const auto oldX = XOffset, oldY = YOffset;
    NeededWidth = twipsX() * float(ZoomedWidth);
    NeededHeight = twipsY() * float(ZoomedHeight);
    here([&] { needsHorizontalBar() ? SetHorizontalScroll() : hideHorizontalBar(); });
    here([&] { needsVerticalBar() ? SetVerticalScroll() : hideVerticalBar(); });
    if (XOffset == oldX && YOffset == oldY) return;
    passZoom();
    here([&] { refreshSoon(); });
}

/// The thumb follows, so that a bar which appears again shows where the picture is.
void udocZoomWindow::hideHorizontalBar() {
    HScroll1.Visible(false);
    XOffset = 0;
    HScroll1.follow(0);
    HPlug.Visible(false);
}

void udocZoomWindow::hideVerticalBar() {
    VScroll1.Visible(false);
    YOffset = unscrolledY();
    VScroll1.follow(-kFrameHeight);
    VPlug.Visible(false);
}

/// The picture begins just under the band.
std::int32_t udocZoomWindow::unscrolledY() const { return rounded(float(kFrameHeight) / twipsY()); }

void udocZoomWindow::SetHorizontalScroll() {
    const auto bar = HScroll1.Place().Height, otherBar = VScroll1.Place().Width;
    const auto top = ScaleHeight - bar;
    auto width = ScaleWidth;
    double max = HScroll1.Max();
    if (ScaleWidth < otherBar) {
        // too narrow for more than this bar
    } else if (needsVerticalBar()) {
        width = ScaleWidth - otherBar;
        max = NeededWidth - float(ScaleWidth) + float(otherBar);
        HPlug.Place({width, top, otherBar, bar});
        HPlug.Visible(true);
    } else {
        max = NeededWidth - float(ScaleWidth);
        HPlug.Visible(false);
    }
    HScroll1.Place({0, top, width, bar});
    HScroll1.bounds(0, max);
    HScroll1.steps(twipsX() * float(ZoomLevel), ScaleWidth);
    HScroll1.Visible(true);
}

/// Unlike the other bar's width, the band's height is not in the maximum. The minimum puts the picture under the band.
void udocZoomWindow::SetVerticalScroll() {
    const auto bar = VScroll1.Place().Width, otherBar = HScroll1.Place().Height;
    const auto band = Frame1.Place().Height;
    const auto left = ScaleWidth - bar;
    auto height = ScaleHeight;
    double max = VScroll1.Max();
    if (band + otherBar > ScaleHeight) {
        // too low for more than this bar
    } else if (needsHorizontalBar()) {
        height = ScaleHeight - otherBar - band;
        max = NeededHeight - float(ScaleHeight) + float(otherBar);
        VPlug.Place({left, band + height, bar, otherBar});
        VPlug.Visible(true);
    } else {
        height = ScaleHeight - band;
        max = NeededHeight - float(ScaleHeight);
        VPlug.Visible(false);
    }
    if (!VScroll1.Visible()) YOffset = unscrolledY(); // before the first resize it was never set
    VScroll1.Place({left, band, bar, height});
    VScroll1.bounds(-kFrameHeight, max);
    VScroll1.steps(twipsY() * float(ZoomLevel), ScaleHeight > band ? ScaleHeight - band : 1);
    VScroll1.Visible(true);
}

void udocZoomWindow::HScroll1_Change() {
    if (services_) scrollTo(XOffset, HScroll1, twipsX());
}

void udocZoomWindow::VScroll1_Change() {
    if (services_) scrollTo(YOffset, VScroll1, twipsY());
}

void udocZoomWindow::scrollTo(std::int32_t& offset, const ScrollBar& bar, float twipsPerPixel) {
    const auto self = shared_from_this();
    offset = rounded(-(float(bar.Value()) / twipsPerPixel));
    UpdateDisplay();
    if (services_) passZoom();
}

} // namespace fernwick
