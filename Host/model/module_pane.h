#pragma once
// The pane that shows the code of a component.
#include "Add-in/platform/events.h"
#include "Add-in/platform/host.h"
#include "Host/model/pane_events.h"
#include <memory>

namespace host {

class Component;
class ToolWindow;

class ModulePane final : public vbide::CodePane {
public:
    explicit ModulePane(std::weak_ptr<Component> component);

    void Show() override;
    vbide::Ref<vbide::Window> Window() override;
    void SetSelection(int startLine, int startColumn, int endLine, int endColumn) override;
    void GetSelection(int& startLine, int& startColumn, int& endLine, int& endColumn) const override;

private:
    /// Error 440 for a removed component.
    void raise(PaneEvent event) const;

    std::weak_ptr<Component> component_;
    std::shared_ptr<ToolWindow> window_;
    fernwick::Subscription focused_;
    int startLine_ = 1, startColumn_ = 1, endLine_ = 1, endColumn_ = 1;
};

} // namespace host
