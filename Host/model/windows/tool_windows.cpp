#include "Host/model/windows/tool_windows.h"
#include "Basic/case_folding.h"
#include "Host/files/system_error.h"
#include <algorithm>

namespace host {

vbide::Ref<vbide::Window> ToolWindows::CreateToolWindow(const vbide::Ref<vbide::AddIn>& addIn,
                                                        const std::string& progId, const std::string& caption,
                                                        const std::string& guidPosition,
                                                        vbide::Ref<vbide::Object>& document) {
    if (!addIn) throw hostError(basic::kInvalidProcedureCall);
    if (!classes_) throw hostError(basic::kCantCreateObject);
    removeAt(guidPosition); // first, as the end of its document must not affect the new one
    const auto failed = basic::attempt([&] { document = classes_->CreateObject(progId); });
    if (failed.Number != 0) throw hostError(failed.Number, failed.Description);
    const auto window = std::make_shared<ToolWindow>(caption, document, guidPosition);
    list_.push_back(window);
    added.raise();
    return window;
}

void ToolWindows::removeAt(const std::string& guidPosition) {
    const auto there = std::find_if(list_.begin(), list_.end(), [&](const auto& window) {
        return !guidPosition.empty() && basic::equalNoCase(window->guidPosition(), guidPosition);
    });
    if (there == list_.end()) return;
    const auto window = *there;
    list_.erase(there);
    window->terminate();
    removed.raise(window);
}

std::vector<vbide::Ref<vbide::Window>> ToolWindows::items() const { return {list_.begin(), list_.end()}; }

} // namespace host
