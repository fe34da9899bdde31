#pragma once
// Redirects the mouse and the keys of the zoom document to the designer.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/event_loop.h"
#include "Add-in/zoom/modZoomManagement.h"

namespace fernwick {

/// The procedures report an overflow of a coordinate, and then return 0; nothing is thrown into the host.
class modZoomWindowSubclassing {
public:
    modZoomWindowSubclassing(const modZoomManagement& management, ErrorReport& errors, const Platform& platform)
        : management_(management), errors_(errors), windows_(platform.windows), loop_(platform.loop) {}
    modZoomWindowSubclassing(const modZoomWindowSubclassing&) = delete;

    /// Restores the windows of an earlier call, and redirects the messages of the zoom document. The offsets are those
    /// of ZoomedDesigner.
    void RedirectWindowMessages(Hwnd zoomHwnd, Hwnd targetHwnd, std::int32_t zoomLevel, std::int32_t xOffset,
                                std::int32_t yOffset);
    void UpdateZoom(std::int32_t zoomLevel, std::int32_t xOffset, std::int32_t yOffset);
    /// Ends the redirection and any drag.
    void release();

    std::intptr_t NewWindowProc(const WindowMessage& message) noexcept;
    std::intptr_t TargetWindowProc(const WindowMessage& message) noexcept;
    std::intptr_t GetMsgProc(int code, std::intptr_t wParam, WindowMessage& message) noexcept;
    bool WindowIsHandleWindow(Hwnd hwnd) const;

private:
    std::intptr_t redirect(const WindowMessage& message);
    std::intptr_t redirectMouse(const WindowMessage& message);
    std::intptr_t dragTarget(const WindowMessage& message);
    void dragHandle(WindowMessage& message);
    void startDrag(Hwnd child, bool isHandle);
    void HookTargetWindow();
    void UnhookTargetWindow();
    void HookHandleWindow();
    void UnhookHandleWindow();
    void restoreWindows();
    void updateDisplay();
    /// Returns 0 after an error, none of which may reach the host.
    template <class Body>
    std::intptr_t guarded(const char* location, Body&& body) noexcept;
    void report(const char* location, const basic::RuntimeError& error);

    const modZoomManagement& management_;
    ErrorReport& errors_;
    HostWindows& windows_;
    EventLoop& loop_;
    Hwnd ZoomHwnd = 0, TargetHwnd = 0, HandleHwnd = 0;
    WindowProc OldZoomProc, OldTargetProc;
    std::intptr_t HookHandle = 0;
    std::int32_t ZoomLevel = 0;
    /// On the screen, where the drag of a handle began.
    WindowPoint HandleStart;
    std::int32_t XOffset = 0, YOffset = 0;
    bool isReporting_ = false;
};

template <class Body>
std::intptr_t modZoomWindowSubclassing::guarded(const char* location, Body&& body) noexcept {
    try {
        return body();
    } catch (const basic::RuntimeError& error) { report(location, error); } catch (...) {
    }
    return 0;
}

} // namespace fernwick
