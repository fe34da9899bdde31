#pragma once
// The document of the zoom window, without its drawing.
#include "Add-in/core/AddIn.h"
#include "Add-in/platform/combo_box.h"
#include "Add-in/platform/windows/scroll_bar.h"
#include "Add-in/zoom/modZoomWindowSubclassing.h"
#include <memory>
#include <optional>
#include <vector>

namespace fernwick {

/// The dependencies of the zoom document.
struct ZoomWindowServices {
    const Platform& platform;
    ErrorReport& errors;
    AddIn& addIn;
    modZoomManagement& management;
    modZoomWindowSubclassing& subclassing;
};

class udocZoomWindow final : public ZoomedDesigner, public std::enable_shared_from_this<udocZoomWindow> {
public:
    /// The height of Frame1, in twips.
    static constexpr std::int32_t kFrameHeight = 450;
    /// The height of the horizontal and the width of the vertical scroll bar, in twips.
    static constexpr std::int32_t kBarSize = 255;

    explicit udocZoomWindow(const ZoomWindowServices& services);
    /// Called once the document is held by a Ref.
    void UserDocument_Initialize();

    // The controls, for the window. It shows what their properties and events report, and passes what the user does:
    // Combo1.ListIndex, and of the bars Value, drag and release.
    Panel HPlug{nullptr, "HPlug", {0, 0, kBarSize, kBarSize}};
    Panel VPlug{nullptr, "VPlug", {0, 0, kBarSize, kBarSize}};
    /// The band at the top, with Combo1 in it.
    Panel Frame1{nullptr, "Frame1", {0, 0, 0, kFrameHeight}};
    /// The zoom level.
    ComboBox Combo1{nullptr, "Combo1"};
    ScrollBar HScroll1{nullptr, "HScroll1", {0, 0, 0, kBarSize}};
    ScrollBar VScroll1{nullptr, "VScroll1", {0, kFrameHeight, kBarSize, 0}, -kFrameHeight};

    void SetZoomWindow(Hwnd target) override;
    std::int32_t GetXOffset() const override { return -XOffset; }
    std::int32_t GetYOffset() const override { return -YOffset; }
    void UpdateDisplay() override;

    // Called by the host:
    void UserDocument_Show() override;
    void UserDocument_Hide() override;
    void UserDocument_Resize(std::int32_t width, std::int32_t height) override;
    void UserDocument_Terminate() override;

    // Raised by the controls:
    void Combo1_Click();
    void HScroll1_Change();
    void HScroll1_Scroll() { HScroll1_Change(); }
    void VScroll1_Change();
    void VScroll1_Scroll() { VScroll1_Change(); }

    /// Called when the add-in is disconnected while the host keeps the window: the document stays, empty.
    void disconnect();

private:
    void AutoRefresh_Timer();
    void MessageHook_GotMessage() { UpdateDisplay(); }
    void ResetWin();
    void ValidateScrollBars();
    void SetHorizontalScroll();
    void SetVerticalScroll();
    void hideHorizontalBar();
    void hideVerticalBar();
    void scrollTo(std::int32_t& offset, const ScrollBar& bar, float twipsPerPixel);
    bool needsHorizontalBar() const { return NeededWidth > float(ScaleWidth); }
    bool needsVerticalBar() const { return float(ScaleHeight - Frame1.Place().Height) < NeededHeight; }
    std::int32_t unscrolledY() const;
    void measure();
    void copyPixels();
    void passZoom();
    void refreshSoon();
    void followSelected(Procedure& here);
    void fitFrame();
    void end();
    Hwnd hwnd() const;
    float twipsX() const { return services_->platform.screen.TwipsPerPixelX(); }
    float twipsY() const { return services_->platform.screen.TwipsPerPixelY(); }

    /// Empty when the add-in is disconnected or the window was removed.
    std::optional<ZoomWindowServices> services_;
    std::unique_ptr<MsgHook> MessageHook;
    Subscription gotMessage_;
    /// Rests while the document is hidden: its tick would make the document of a closed window ZoomDocument again.
    Timer AutoRefresh;
    bool refreshes_ = false, isShown_ = false, isRefreshPosted_ = false;
    Hwnd TargetHwnd = 0;
    std::int32_t TargetWidth = 0, TargetHeight = 0;
    std::int32_t YOffset = 0, XOffset = 0;
    std::int32_t ZoomedWidth = 0, ZoomedHeight = 0;
    std::int32_t ZoomLevel = 0;
    std::int32_t ScaleWidth = 0, ScaleHeight = 0;
    float NeededWidth = 0, NeededHeight = 0;
    std::vector<Subscription> controls_;
};

} // namespace fernwick
