#pragma once
// The tool windows that add-ins create.
#include "Add-in/platform/classes.h"
#include "Host/model/windows/tool_window.h"
#include <memory>
#include <vector>

namespace host {

class ToolWindows final : public vbide::Windows {
public:
    explicit ToolWindows(fernwick::Classes* classes) : classes_(classes) {}

    /// Replaces the window that is at this position.
    vbide::Ref<vbide::Window> CreateToolWindow(const vbide::Ref<vbide::AddIn>& addIn, const std::string& progId,
                                               const std::string& caption, const std::string& guidPosition,
                                               vbide::Ref<vbide::Object>& document) override;
    std::vector<vbide::Ref<vbide::Window>> items() const override;

    // ---- for front ends ----
    const std::vector<std::shared_ptr<ToolWindow>>& list() const { return list_; }
    /// Raised after a window is added.
    fernwick::Event<> added;
    /// Raised after a window is removed, which is hidden then.
    fernwick::Event<const std::shared_ptr<ToolWindow>&> removed;

private:
    void removeAt(const std::string& guidPosition);

    fernwick::Classes* classes_;
    std::vector<std::shared_ptr<ToolWindow>> list_;
};

} // namespace host
