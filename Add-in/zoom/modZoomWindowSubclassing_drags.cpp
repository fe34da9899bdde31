// Drags in the designer that began in the zoom document.
#include "Add-in/zoom/coordinates.h"
#include "Add-in/zoom/modZoomWindowSubclassing.h"
#include <utility>

namespace fernwick {

namespace {

/// Added to the travel of a dragged handle.
constexpr int kHandleTravel = 6;

bool isDrag(const WindowMessage& message) { return message.number == WM_MOUSEMOVE || message.number == WM_LBUTTONUP; }

} // namespace

void modZoomWindowSubclassing::startDrag(Hwnd child, bool isHandle) {
    if (!isHandle) return HookTargetWindow();
    if (child == 0) return;
    HandleHwnd = child;
    HandleStart = windows_.GetCursorPos();
    HookHandleWindow();
}

// ---- a control ----

/// After a press whose release was lost, the window still has our procedure, which must not become its own successor.
void modZoomWindowSubclassing::HookTargetWindow() {
    const auto ours = procedureOf<&modZoomWindowSubclassing::TargetWindowProc>(this);
    const auto before = windows_.SetWindowProc(TargetHwnd, ours);
    if (before != ours) OldTargetProc = before;
}

void modZoomWindowSubclassing::UnhookTargetWindow() {
    if (OldTargetProc != WindowProc{}) windows_.SetWindowProc(TargetHwnd, OldTargetProc);
}

std::intptr_t modZoomWindowSubclassing::TargetWindowProc(const WindowMessage& message) noexcept {
    if (!isDrag(message)) return windows_.CallWindowProc(OldTargetProc, message);
    const auto result = guarded("modZoomWindowSubclassing.TargetWindowProc", [&] { return dragTarget(message); });
    if (message.number == WM_LBUTTONUP) {
        UnhookTargetWindow();
        guarded("modZoomWindowSubclassing.TargetWindowProc", [&] {
            loop_.DoEvents();
            return result;
        });
    }
    return result;
}

/// The designer has the mouse, so the place is the pointer's on the screen, in the designer's coordinates.
std::intptr_t modZoomWindowSubclassing::dragTarget(const WindowMessage& message) {
    const auto zoom = windows_.GetWindowRect(ZoomHwnd);
    const auto origin = windows_.ClientToScreen(TargetHwnd, {0, 0});
    const auto newX = toDesigner(std::int64_t(LoWord(message.lParam)) + XOffset + origin.x - zoom.left, ZoomLevel);
    const auto newY = toDesigner(std::int64_t(HiWord(message.lParam)) + YOffset + origin.y - zoom.top, ZoomLevel);
    const auto result =
        windows_.CallWindowProc(OldTargetProc, {message.hwnd, message.number, message.wParam, MakeDWord(newX, newY)});
    updateDisplay();
    return result;
}

// ---- a sizing handle ----

void modZoomWindowSubclassing::HookHandleWindow() {
    UnhookHandleWindow(); // the release of an earlier drag may have been lost
    HookHandle = windows_.SetWindowsHookEx(
        {this, [](void* self, int code, std::intptr_t wParam, WindowMessage& message) noexcept {
             return static_cast<modZoomWindowSubclassing*>(self)->GetMsgProc(code, wParam, message);
         }});
}

void modZoomWindowSubclassing::UnhookHandleWindow() {
    if (const auto hook = std::exchange(HookHandle, 0)) windows_.UnhookWindowsHookEx(hook);
}

std::intptr_t modZoomWindowSubclassing::GetMsgProc(int code, std::intptr_t wParam, WindowMessage& message) noexcept {
    const auto result = windows_.CallNextHookEx(HookHandle, code, wParam, message);
    if (message.hwnd != HandleHwnd || !isDrag(message)) return result;
    const bool isReleased = message.number == WM_LBUTTONUP;
    const auto dragged = guarded("modZoomWindowSubclassing.GetMsgProc", [&] {
        dragHandle(message);
        return result;
    });
    if (isReleased) UnhookHandleWindow();
    return dragged;
}

void modZoomWindowSubclassing::dragHandle(WindowMessage& message) {
    const auto cursor = windows_.GetCursorPos();
    const auto travelX = std::int64_t(cursor.x) - HandleStart.x + kHandleTravel;
    const auto travelY = std::int64_t(cursor.y) - HandleStart.y + kHandleTravel;
    message.lParam = MakeDWord(toDesigner(travelX, ZoomLevel), toDesigner(travelY, ZoomLevel));
    updateDisplay();
}

} // namespace fernwick
