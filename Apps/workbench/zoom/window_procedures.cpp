#include "Apps/workbench/zoom/window_procedures.h"
#include <algorithm>

namespace workbench {

using fernwick::WindowMessage;
using fernwick::WindowProc;

namespace {

constexpr int kMessageTaken = 0;             // HC_ACTION
constexpr std::intptr_t kMessageRemoved = 1; // PM_REMOVE

} // namespace

WindowProc WindowProcedures::set(fernwick::Hwnd window, const WindowProc& procedure) noexcept {
    const auto found = replaced_.find(window);
    const auto before = found == replaced_.end() ? made_ : found->second;
    if (procedure.call && procedure != made_)
        replaced_[window] = procedure;
    else if (found != replaced_.end())
        replaced_.erase(found);
    return before;
}

std::intptr_t WindowProcedures::call(const WindowProc& procedure, const WindowMessage& message) const noexcept {
    const auto& called = procedure.call ? procedure : made_;
    return called.call(called.object, message);
}

std::intptr_t WindowProcedures::send(const WindowMessage& message) const noexcept {
    const auto found = replaced_.find(message.hwnd);
    return call(found == replaced_.end() ? made_ : found->second, message);
}

std::intptr_t WindowProcedures::dispatch(WindowMessage message) const noexcept {
    if (!hooks_.empty()) {
        const auto hook = hooks_.back().second; // the hook may remove itself
        hook.call(hook.object, kMessageTaken, kMessageRemoved, message);
    }
    return send(message);
}

std::intptr_t WindowProcedures::addHook(const fernwick::GetMessageHook& hook) noexcept {
    hooks_.emplace_back(++lastHook_, hook);
    return lastHook_;
}

void WindowProcedures::removeHook(std::intptr_t hook) noexcept {
    std::erase_if(hooks_, [&](const auto& one) { return one.first == hook; });
}

std::intptr_t WindowProcedures::callNextHook(std::intptr_t hook, int code, std::intptr_t wParam,
                                             WindowMessage& message) const noexcept {
    const auto found = std::find_if(hooks_.begin(), hooks_.end(), [&](const auto& one) { return one.first == hook; });
    if (found == hooks_.end() || found == hooks_.begin()) return 0;
    const auto next = std::prev(found)->second;
    return next.call(next.object, code, wParam, message);
}

} // namespace workbench
