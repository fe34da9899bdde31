// The magnified picture of the designer. It is drawn straight onto the document, and no copy is kept.
#include "Add-in/zoom/udocZoomWindow.h"
#include "Basic/arithmetic.h"

namespace fernwick {

namespace {

/// The drawing surface of a window, or of none.
class DrawingSurface {
public:
    DrawingSurface(HostWindows& windows, Hwnd hwnd) : windows_(windows), hwnd_(hwnd), dc_(windows.GetDC(hwnd)) {}
    DrawingSurface(const DrawingSurface&) = delete;
    ~DrawingSurface() {
        if (dc_ != 0) windows_.ReleaseDC(hwnd_, dc_);
    }
    Hdc dc() const { return dc_; }

private:
    HostWindows& windows_;
    const Hwnd hwnd_;
    const Hdc dc_;
};

} // namespace

void udocZoomWindow::UpdateDisplay() {
    if (!services_ || TargetHwnd == 0) return;
    const auto self = shared_from_this(); // a report processes events, which may remove the window
    Procedure here{services_->errors, "udocZoomWindow.UpdateDisplay"};
    if (here([&] { measure(); })) here([&] { copyPixels(); });
}

/// A picture that shrank would leave its old edge.
void udocZoomWindow::measure() {
    const auto outer = services_->platform.windows.GetWindowRect(TargetHwnd);
    TargetWidth = basic::Subtract<basic::Long>(outer.right, outer.left);
    TargetHeight = basic::Subtract<basic::Long>(outer.bottom, outer.top);
    const auto width = basic::Multiply<basic::Long>(TargetWidth, ZoomLevel);
    const auto height = basic::Multiply<basic::Long>(TargetHeight, ZoomLevel);
    if (ZoomedWidth > width || ZoomedHeight > height) services_->platform.windows.Clear(hwnd());
    ZoomedWidth = width;
    ZoomedHeight = height;
}

void udocZoomWindow::copyPixels() {
    auto& windows = services_->platform.windows;
    const DrawingSurface document{windows, hwnd()}, target{windows, TargetHwnd};
    if (document.dc() == 0 || target.dc() == 0) return ResetWin();
    const WindowRect place{XOffset, YOffset, basic::Add(XOffset, ZoomedWidth), basic::Add(YOffset, ZoomedHeight)};
    windows.StretchBlt(document.dc(), place, target.dc(), {0, 0, TargetWidth, TargetHeight}, SRCCOPY);
    ValidateScrollBars();
}

/// One refresh at most is under way.
void udocZoomWindow::refreshSoon() {
    if (TargetHwnd == 0 || isRefreshPosted_) return;
    services_->platform.loop.Post([weak = weak_from_this()] {
        if (const auto document = weak.lock()) {
            document->isRefreshPosted_ = false;
            document->UpdateDisplay();
        }
    });
    isRefreshPosted_ = true;
}

} // namespace fernwick
