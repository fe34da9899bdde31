#include "Add-in/zoom/udocZoomWindow.h"
#include "Basic/arithmetic.h"
#include "Basic/number_text.h"

namespace fernwick {

namespace {

constexpr int kRefreshInterval = 500;
constexpr const char* kLevels[] = {"1", "2", "3", "4", "5"};
constexpr int kFirstLevel = 1;

} // namespace

udocZoomWindow::udocZoomWindow(const ZoomWindowServices& services)
    : services_(services),
      AutoRefresh(services.platform.loop, kRefreshInterval, this, &udocZoomWindow::AutoRefresh_Timer) {
    controls_.push_back(Combo1.Click.connect([this] { Combo1_Click(); }));
    controls_.push_back(HScroll1.Change.connect([this] { HScroll1_Change(); }));
    controls_.push_back(HScroll1.Scroll.connect([this] { HScroll1_Scroll(); }));
    controls_.push_back(VScroll1.Change.connect([this] { VScroll1_Change(); }));
    controls_.push_back(VScroll1.Scroll.connect([this] { VScroll1_Scroll(); }));
}

void udocZoomWindow::UserDocument_Initialize() {
    Procedure here{services_->errors, "udocZoomWindow.UserDocument_Initialize"};
    for (const auto* level : kLevels) here([&] { Combo1.AddItem(level); });
    here([&] { Combo1.ListIndex(kFirstLevel); });
    fitFrame();
    here([&] {
        MessageHook = services_->platform.windows.CreateMsgHook();
        gotMessage_ = MessageHook->GotMessage.connect([this] { MessageHook_GotMessage(); });
    });
    services_->management.ZoomDocument = shared_from_this();
    followSelected(here);
}

void udocZoomWindow::followSelected(Procedure& here) {
    const auto services = *services_;
    const basic::Ref<vbide::VBE> vbe = services.addIn.gVBInstance;
    if (!vbe) return;
    const auto hasDesigner = [&] {
        const auto component = vbe->SelectedVBComponent();
        return component && component->Type() == vbide::vbext_ct_VBForm && component->HasOpenDesigner() &&
               component->DesignerWindow()->Visible();
    };
    if (here.test(hasDesigner)) here([&] { services.management.SetZoomForm(vbe->SelectedVBComponent()); });
}

void udocZoomWindow::UserDocument_Show() {
    if (!services_) return;
    Procedure here{services_->errors, "udocZoomWindow.UserDocument_Show"};
    isShown_ = true;
    here([&] { AutoRefresh.Enabled(refreshes_); });
    followSelected(here);
}

void udocZoomWindow::UserDocument_Hide() {
    if (!services_) return;
    isShown_ = false;
    AutoRefresh.Enabled(false);
    services_->management.CloseZoomWin();
}

void udocZoomWindow::UserDocument_Resize(std::int32_t width, std::int32_t height) {
    ScaleWidth = width;
    ScaleHeight = height;
    ValidateScrollBars();
    fitFrame();
}

void udocZoomWindow::fitFrame() { Frame1.Place({0, 0, ScaleWidth, kFrameHeight}); }

void udocZoomWindow::UserDocument_Terminate() {
    if (!services_) return;
    const auto self = shared_from_this();
    services_->management.CloseZoomWin();
    end();
}

void udocZoomWindow::disconnect() {
    if (!services_) return;
    ResetWin();
    services_->platform.windows.Clear(hwnd());
    end();
}

void udocZoomWindow::end() {
    AutoRefresh.Enabled(false);
    gotMessage_.reset();
    MessageHook.reset();
    TargetHwnd = 0;
    services_.reset();
}

void udocZoomWindow::SetZoomWindow(Hwnd target) {
    if (!services_ || target == 0) return;
    Procedure here{services_->errors, "udocZoomWindow.SetZoomWindow"};
    refreshes_ = true;
    here([&] { AutoRefresh.Enabled(isShown_); });
    TargetHwnd = target;
    if (MessageHook) {
        here([&] { MessageHook->Uninstall(); });
        here([&] { MessageHook->Install(TargetHwnd); });
    }
    here([&] {
        services_->subclassing.RedirectWindowMessages(hwnd(), TargetHwnd, ZoomLevel, GetXOffset(), GetYOffset());
    });
    UpdateDisplay();
}

void udocZoomWindow::ResetWin() {
    Procedure here{services_->errors, "udocZoomWindow.ResetWin"};
    if (MessageHook) here([&] { MessageHook->Uninstall(); });
    refreshes_ = false;
    AutoRefresh.Enabled(false);
    ZoomedWidth = ZoomedHeight = 0;
    ValidateScrollBars();
    TargetHwnd = 0;
}

void udocZoomWindow::AutoRefresh_Timer() {
    if (!services_) return;
    const auto self = shared_from_this();
    services_->management.ZoomDocument = self;
    UpdateDisplay();
}

void udocZoomWindow::Combo1_Click() {
    if (!services_) return;
    Procedure here{services_->errors, "udocZoomWindow.Combo1_Click"};
    ZoomLevel = std::int32_t(basic::Val(Combo1.Text()));
    passZoom();
    here([&] { ZoomedWidth = basic::Multiply(TargetWidth, ZoomLevel); });
    here([&] { ZoomedHeight = basic::Multiply(TargetHeight, ZoomLevel); });
    here([&] { services_->platform.windows.Clear(hwnd()); });
    UpdateDisplay();
}

/// Clicks land where the user sees the picture.
void udocZoomWindow::passZoom() { services_->subclassing.UpdateZoom(ZoomLevel, GetXOffset(), GetYOffset()); }

Hwnd udocZoomWindow::hwnd() const { return services_->platform.windows.WindowOfDocument(*this); }

} // namespace fernwick
