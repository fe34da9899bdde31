#pragma once
// The procedures of windows, and the hooks that see the thread's messages before them.
#include "Add-in/platform/host_windows.h"
#include <map>
#include <utility>
#include <vector>

namespace workbench {

class WindowProcedures {
public:
    /// `made` is the procedure that all windows are created with; it finds the window by its number.
    explicit WindowProcedures(const fernwick::WindowProc& made) : made_(made) {}

    /// Returns the procedure before. An empty one restores the one that the window was created with.
    fernwick::WindowProc set(fernwick::Hwnd window, const fernwick::WindowProc& procedure) noexcept;
    std::intptr_t call(const fernwick::WindowProc& procedure, const fernwick::WindowMessage& message) const noexcept;
    std::intptr_t send(const fernwick::WindowMessage& message) const noexcept;
    /// As for a message from the thread's queue: the hooks come first.
    std::intptr_t dispatch(fernwick::WindowMessage message) const noexcept;

    std::intptr_t addHook(const fernwick::GetMessageHook& hook) noexcept;
    void removeHook(std::intptr_t hook) noexcept;
    std::intptr_t callNextHook(std::intptr_t hook, int code, std::intptr_t wParam,
                               fernwick::WindowMessage& message) const noexcept;
    std::size_t hookCount() const { return hooks_.size(); }

private:
    fernwick::WindowProc made_;
    std::map<fernwick::Hwnd, fernwick::WindowProc> replaced_;
    /// The latest last.
    std::vector<std::pair<std::intptr_t, fernwick::GetMessageHook>> hooks_;
    std::intptr_t lastHook_ = 0;
};

} // namespace workbench
