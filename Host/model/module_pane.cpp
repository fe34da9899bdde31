#include "Host/model/module_pane.h"
#include "Host/model/component.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/windows/tool_window.h"

namespace host {

ModulePane::ModulePane(std::weak_ptr<Component> component)
    : component_(std::move(component)),
      window_(std::make_shared<ToolWindow>(component_.lock()->Name())),
      focused_(window_->focused.connect([this] { raise(&PaneEvents::shown); })) {}

void ModulePane::raise(PaneEvent event) const {
    const auto component = component_.lock();
    if (!component) throwRemoved();
    component->owner();
    component->raiseToPanes(event);
}

void ModulePane::Show() {
    window_->Visible(true);
    raise(&PaneEvents::shown);
}

vbide::Ref<vbide::Window> ModulePane::Window() { return window_; }

void ModulePane::SetSelection(int startLine, int startColumn, int endLine, int endColumn) {
    startLine_ = startLine;
    startColumn_ = startColumn;
    endLine_ = endLine;
    endColumn_ = endColumn;
    raise(&PaneEvents::selectionSet);
}

void ModulePane::GetSelection(int& startLine, int& startColumn, int& endLine, int& endColumn) const {
    startLine = startLine_;
    startColumn = startColumn_;
    endLine = endLine_;
    endColumn = endColumn_;
}

} // namespace host
