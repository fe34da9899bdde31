#pragma once
#include "Add-in/platform/host_windows.h"

namespace fernwick {

/// A host without windows, such as the command line.
class NoWindows final : public HostWindows {
public:
    Hwnd MainWindow() const noexcept override { return 0; }
    void EnumChildWindows(Hwnd, const std::function<bool(Hwnd)>&) const override {}
    std::string GetWindowText(Hwnd, int) const override { return {}; }
    WindowRect GetWindowRect(Hwnd) const noexcept override { return {}; }
    WindowPoint ClientToScreen(Hwnd, WindowPoint place) const noexcept override { return place; }
    Hwnd ChildWindowFromPoint(Hwnd, WindowPoint) const noexcept override { return 0; }
    std::intptr_t GetWindowInstance(Hwnd) const noexcept override { return 0; }
    WindowProc SetWindowProc(Hwnd, const WindowProc&) noexcept override { return {}; }
    std::intptr_t CallWindowProc(const WindowProc&, const WindowMessage&) noexcept override { return 0; }
    std::intptr_t SendMessage(const WindowMessage&) noexcept override { return 0; }
    WindowPoint GetCursorPos() const noexcept override { return {}; }
    void SetCursorPos(WindowPoint) noexcept override {}
    std::intptr_t SetWindowsHookEx(const GetMessageHook&) noexcept override { return 1; }
    void UnhookWindowsHookEx(std::intptr_t) noexcept override {}
    std::intptr_t CallNextHookEx(std::intptr_t, int, std::intptr_t, WindowMessage&) noexcept override { return 0; }
    Hdc GetDC(Hwnd) noexcept override { return 0; }
    void ReleaseDC(Hwnd, Hdc) noexcept override {}
    void StretchBlt(Hdc, const WindowRect&, Hdc, const WindowRect&, RasterOperation) noexcept override {}
    void Clear(Hwnd) noexcept override {}
    Hwnd WindowOfDocument(const Object&) const noexcept override { return 0; }
    std::unique_ptr<MsgHook> CreateMsgHook() override { return std::make_unique<Hook>(); }

private:
    struct Hook final : MsgHook {
        void Install(Hwnd) override {}
        void Uninstall() override {}
    };
};

} // namespace fernwick
