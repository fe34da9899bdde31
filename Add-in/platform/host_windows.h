#pragma once
// Operations on the host's windows, for an add-in that works inside them.
#include "Add-in/platform/events.h"
#include "Add-in/platform/object.h"
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace fernwick {

/// A window's number, 0 for none. Numbers are never used twice.
using Hwnd = std::intptr_t;

/// In pixels, of 15 twips each.
struct WindowPoint {
    int x = 0, y = 0;
    friend bool operator==(const WindowPoint&, const WindowPoint&) = default;
};

/// The right and bottom edges lie outside.
struct WindowRect {
    int left = 0, top = 0, right = 0, bottom = 0;
    friend bool operator==(const WindowRect&, const WindowRect&) = default;
};

enum WindowMessageNumber : unsigned {
    WM_SETFOCUS = 0x07,
    WM_SETCURSOR = 0x20,
    WM_MOUSEACTIVATE = 0x21,
    WM_KEYDOWN = 0x100,
    WM_KEYUP = 0x101,
    WM_MOUSEMOVE = 0x200,
    WM_LBUTTONDOWN = 0x201,
    WM_LBUTTONUP = 0x202,
};

/// The bits of `wParam` in a mouse message.
enum MouseKeys : std::intptr_t { MK_LBUTTON = 1, MK_SHIFT = 4, MK_CONTROL = 8 };

struct WindowMessage {
    Hwnd hwnd = 0;
    unsigned number = 0;
    std::intptr_t wParam = 0, lParam = 0;
};

/// A window's procedure: an object and one of its functions. Comparing and copying never allocate. An empty one means
/// the procedure that the window was created with.
struct WindowProc {
    void* object = nullptr;
    std::intptr_t (*call)(void*, const WindowMessage&) noexcept = nullptr;
    friend bool operator==(const WindowProc&, const WindowProc&) = default;
};

/// The member function of an object as a window's procedure. The object outlives its use.
template <auto member, class T>
WindowProc procedureOf(T* object) {
    return {object, [](void* self, const WindowMessage& message) noexcept -> std::intptr_t {
                return (static_cast<T*>(self)->*member)(message);
            }};
}

/// A hook procedure, which sees each message of the thread before its window and may change it.
struct GetMessageHook {
    void* object = nullptr;
    std::intptr_t (*call)(void*, int code, std::intptr_t wParam, WindowMessage& message) noexcept = nullptr;
};

/// A drawing surface of a window, 0 for none.
using Hdc = std::intptr_t;

enum RasterOperation : std::uint32_t { SRCCOPY = 0xCC0020 };

/// Raises an event when the hooked window is to be painted.
class MsgHook {
public:
    virtual ~MsgHook() = default;
    virtual void Install(Hwnd hwnd) = 0;
    virtual void Uninstall() = 0;
    Event<> GotMessage;
};

/// An operation on 0 or on a closed window does nothing and returns 0 or an empty value. Nothing throws.
class HostWindows {
public:
    virtual ~HostWindows() = default;

    /// 0 if the host has no window.
    virtual Hwnd MainWindow() const noexcept = 0;
    /// Visits the windows inside another one, at any depth, from front to back, until `visit` returns false.
    virtual void EnumChildWindows(Hwnd parent, const std::function<bool(Hwnd)>& visit) const = 0;
    /// At most `size - 1` bytes.
    virtual std::string GetWindowText(Hwnd hwnd, int size) const = 0;
    /// The outer rectangle, on the screen.
    virtual WindowRect GetWindowRect(Hwnd hwnd) const noexcept = 0;
    /// Converts a place in a window's client area to the screen. The place itself for a window that does not exist.
    virtual WindowPoint ClientToScreen(Hwnd hwnd, WindowPoint place) const noexcept = 0;
    /// The direct child at a place in the client area, the window itself where it has no child, 0 outside.
    virtual Hwnd ChildWindowFromPoint(Hwnd hwnd, WindowPoint place) const noexcept = 0;
    /// Which program part made the window: kDesignerInstance for the handles of a designer.
    virtual std::intptr_t GetWindowInstance(Hwnd hwnd) const noexcept = 0;

    /// Replaces a window's procedure. Returns the one before, which is never empty for a window that exists.
    virtual WindowProc SetWindowProc(Hwnd hwnd, const WindowProc& procedure) noexcept = 0;
    virtual std::intptr_t CallWindowProc(const WindowProc& procedure, const WindowMessage& message) noexcept = 0;
    /// Calls the window's procedure and returns its result.
    virtual std::intptr_t SendMessage(const WindowMessage& message) noexcept = 0;

    /// On the screen.
    virtual WindowPoint GetCursorPos() const noexcept = 0;
    /// Never moves the pointer. Posts one WM_MOUSEMOVE to the window that has the mouse, nothing if none has.
    virtual void SetCursorPos(WindowPoint place) noexcept = 0;

    /// Returns the hook's number, which is never 0.
    virtual std::intptr_t SetWindowsHookEx(const GetMessageHook& hook) noexcept = 0;
    virtual void UnhookWindowsHookEx(std::intptr_t hook) noexcept = 0;
    /// Calls the hook that was set before this one.
    virtual std::intptr_t CallNextHookEx(std::intptr_t hook, int code, std::intptr_t wParam,
                                         WindowMessage& message) noexcept = 0;

    /// 0 for a window without content.
    virtual Hdc GetDC(Hwnd hwnd) noexcept = 0;
    virtual void ReleaseDC(Hwnd hwnd, Hdc dc) noexcept = 0;
    /// Shows the content of a window, as it is now, magnified on another one. Negative places are off the window.
    virtual void StretchBlt(Hdc to, const WindowRect& target, Hdc from, const WindowRect& source,
                            RasterOperation operation) noexcept = 0;
    /// Removes what StretchBlt drew.
    virtual void Clear(Hwnd hwnd) noexcept = 0;

    /// The window of an add-in's document in a tool window of the host; 0 if it has none.
    virtual Hwnd WindowOfDocument(const Object& document) const noexcept = 0;
    virtual std::unique_ptr<MsgHook> CreateMsgHook() = 0;
};

/// The instance that created a designer's handles.
inline constexpr std::intptr_t kDesignerInstance = 0x400000;

} // namespace fernwick
