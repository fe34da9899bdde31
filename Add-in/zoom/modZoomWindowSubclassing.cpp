#include "Add-in/zoom/modZoomWindowSubclassing.h"
#include "Add-in/zoom/coordinates.h"
#include <utility>

namespace fernwick {

namespace {

/// The hit test of a window's client area.
constexpr basic::Integer HTCLIENT = 1;

} // namespace

/// Moves continue under the box, and each of them would add another one. A box that fails must not end the host.
void modZoomWindowSubclassing::report(const char* location, const basic::RuntimeError& error) {
    if (std::exchange(isReporting_, true)) return;
    try {
        errors_.Error_ShowAddInError(location, error);
    } catch (...) {}
    isReporting_ = false;
}

void modZoomWindowSubclassing::RedirectWindowMessages(Hwnd zoomHwnd, Hwnd targetHwnd, std::int32_t zoomLevel,
                                                      std::int32_t xOffset, std::int32_t yOffset) {
    restoreWindows();
    ZoomHwnd = zoomHwnd;
    TargetHwnd = targetHwnd;
    UpdateZoom(zoomLevel, xOffset, yOffset);
    OldZoomProc = windows_.SetWindowProc(ZoomHwnd, procedureOf<&modZoomWindowSubclassing::NewWindowProc>(this));
}

/// Also if there was no drag: the procedure of another designer is the same one.
void modZoomWindowSubclassing::restoreWindows() {
    if (TargetHwnd == 0) return;
    windows_.SetWindowProc(ZoomHwnd, OldZoomProc);
    windows_.SetWindowProc(TargetHwnd, OldTargetProc);
}

void modZoomWindowSubclassing::UpdateZoom(std::int32_t zoomLevel, std::int32_t xOffset, std::int32_t yOffset) {
    ZoomLevel = zoomLevel;
    XOffset = xOffset;
    YOffset = yOffset;
}

void modZoomWindowSubclassing::release() {
    restoreWindows();
    UnhookHandleWindow();
    ZoomHwnd = TargetHwnd = HandleHwnd = 0;
}

std::intptr_t modZoomWindowSubclassing::NewWindowProc(const WindowMessage& message) noexcept {
    return guarded("modZoomWindowSubclassing.NewWindowProc", [&] { return redirect(message); });
}

std::intptr_t modZoomWindowSubclassing::redirect(const WindowMessage& message) {
    switch (message.number) {
    case WM_KEYDOWN:
    case WM_KEYUP: return windows_.SendMessage({TargetHwnd, message.number, message.wParam, message.lParam});
    case WM_SETFOCUS: return 1; // the designer keeps the focus
    case WM_SETCURSOR:
    case WM_MOUSEACTIVATE: return windows_.SendMessage({TargetHwnd, message.number, TargetHwnd, message.lParam});
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP: return redirectMouse(message);
    default: return windows_.CallWindowProc(OldZoomProc, message);
    }
}

/// Each message that is sent may change the target: the designer's window activates its component.
std::intptr_t modZoomWindowSubclassing::redirectMouse(const WindowMessage& message) {
    const WindowPoint place{LoWord(message.lParam), HiWord(message.lParam)};
    const auto realX = toDesigner(std::int64_t(XOffset) + place.x, ZoomLevel);
    const auto realY = toDesigner(std::int64_t(YOffset) + place.y, ZoomLevel);
    const Hwnd child = windows_.ChildWindowFromPoint(TargetHwnd, {realX, realY});
    const bool isHandle = WindowIsHandleWindow(child);
    windows_.SendMessage(
        {isHandle ? child : TargetHwnd, WM_SETCURSOR, child, MakeDWord(HTCLIENT, basic::Integer(message.number))});
    const std::intptr_t result =
        windows_.SendMessage({isHandle ? child : TargetHwnd, message.number, message.wParam, MakeDWord(realX, realY)});
    if (isHandle) windows_.SetCursorPos(windows_.ClientToScreen(ZoomHwnd, place));
    if (message.number == WM_LBUTTONDOWN) startDrag(child, isHandle);
    windows_.SendMessage({TargetHwnd, WM_SETFOCUS, 0, 0});
    updateDisplay();
    return result;
}

/// The designer's handles are windows of its own program part; any other child is a control.
bool modZoomWindowSubclassing::WindowIsHandleWindow(Hwnd hwnd) const {
    return hwnd != TargetHwnd && windows_.GetWindowInstance(hwnd) == kDesignerInstance;
}

void modZoomWindowSubclassing::updateDisplay() {
    if (const auto document = management_.ZoomDocument) document->UpdateDisplay();
}

} // namespace fernwick
