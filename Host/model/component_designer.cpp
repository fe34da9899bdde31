#include "Host/model/component_designer.h"
#include "Host/model/component.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include "Host/model/project_references.h"
#include "Host/model/windows/tool_window.h"
#include <utility>

namespace host {
FormDesigner& ComponentDesigner::designer() {
    auto& source = component_.source();
    if (!designer_) designer_ = std::make_unique<FormDesigner>(source.form(), source.codePage(), hooks());
    return *designer_;
}

DesignerHooks ComponentDesigner::hooks() {
    // The designer does not outlive the component.
    auto& component = component_;
    const auto raise = [&component](const auto& event, const auto&... arguments) {
        component.owner()->host()->raise(event, arguments...);
    };
    DesignerHooks hooks;
    hooks.changed = [&component] {
        component.changed();
        component.raiseToPanes(&PaneEvents::designChanged);
    };
    hooks.controlAdded = [this, raise](const auto& control) { raise(controlsEvents_->ItemAdded, control); };
    hooks.controlRemoved = [this, raise](const auto& control) { raise(controlsEvents_->ItemRemoved, control); };
    hooks.controlRenamed = [this, raise](const auto& control, const std::string& oldName, int oldIndex) {
        raise(controlsEvents_->ItemRenamed, control, oldName, oldIndex);
    };
    hooks.renameForm = [&component](const std::string& name) { component.Name(name); };
    hooks.objectLine = [&component](const std::string& className) {
        return component.owner()->references().objectLineOf(className);
    };
    hooks.resources = [this](const std::string& name) { return resources_.find(name); };
    hooks.addResource = [this](const std::string& record) { return resources_.add(record); };
    const auto& options = component.owner()->host()->options();
    hooks.classes = options.controlClasses;
    hooks.classOfProgId = options.classOfProgId;
    return hooks;
}

bool ComponentDesigner::isDesignerOf(const vbide::Ref<vbide::VBForm>& form) const {
    return designer_ && designer_->Designer() == form;
}

bool ComponentDesigner::isOpen() const { return window_ && window_->Visible(); }

std::shared_ptr<ToolWindow> ComponentDesigner::window() {
    if (window_) return window_;
    window_ = std::make_shared<ToolWindow>([weak = component_.weak_from_this()] {
        const auto component = weak.lock();
        return component ? component->designerCaption() : std::string();
    });
    const auto forward = [&component = component_](PaneEvent event) {
        return [&component, event] { component.raiseToPanes(event); };
    };
    windowEvents_.push_back(window_->changed.connect(forward(&PaneEvents::designerOpened)));
    windowEvents_.push_back(window_->changed.connect([this] { announce(); }));
    windowEvents_.push_back(window_->focused.connect(forward(&PaneEvents::designerShown)));
    return window_;
}

void ComponentDesigner::announce() {
    const bool wasOpen = std::exchange(wasOpen_, isOpen());
    if (!wasOpen && wasOpen_ && !isActivating_) component_.designerShown();
}

void ComponentDesigner::bringToFront() {
    struct Done {
        bool& isActivating;
        ~Done() { isActivating = false; }
    } done{isActivating_};
    isActivating_ = true; // an activation has events of its own
    window()->SetFocus();
}

void ComponentDesigner::reset() {
    designer_.reset();
    resources_.reread();
}

} // namespace host
