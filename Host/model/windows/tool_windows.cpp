#include "Host/model/windows/tool_windows.h"
#include "Host/files/system_error.h"

namespace host {

vbide::Ref<vbide::Window> ToolWindows::CreateToolWindow(const vbide::Ref<vbide::AddIn>& addIn,
                                                        const std::string& progId, const std::string& caption,
                                                        const std::string&, vbide::Ref<vbide::Object>& document) {
    if (!addIn) throw hostError(basic::kInvalidProcedureCall);
    if (!classes_) throw hostError(basic::kCantCreateObject);
    const auto failed = basic::attempt([&] { document = classes_->CreateObject(progId); });
    if (failed.Number != 0) throw hostError(failed.Number, failed.Description);
    const auto window = std::make_shared<ToolWindow>(caption, document);
    list_.push_back(window);
    added.raise();
    return window;
}

std::vector<vbide::Ref<vbide::Window>> ToolWindows::items() const { return {list_.begin(), list_.end()}; }

} // namespace host
