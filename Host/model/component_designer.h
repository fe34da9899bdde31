#pragma once
// The designer of a component: its form, its window and its events.
#include "Add-in/platform/host_events.h"
#include "Add-in/platform/host_project.h"
#include "Host/model/form_resources.h"
#include "Host/model/forms/form_designer.h"
#include <memory>
#include <string>
#include <vector>

namespace host {

class Component;
class ToolWindow;

/// Part of a component, which must have a designer for all members but reset().
class ComponentDesigner {
public:
    explicit ComponentDesigner(Component& component) : component_(component), resources_(component) {}

    vbide::Ref<vbide::Properties> properties() { return designer().Properties(); }
    vbide::Ref<vbide::VBForm> form() { return designer().Designer(); }
    /// True for this designer's form; does not create one.
    bool isDesignerOf(const vbide::Ref<vbide::VBForm>& form) const;
    bool isOpen() const;
    std::shared_ptr<ToolWindow> window();
    /// Shows the window as part of the component's activation.
    void bringToFront();
    const vbide::Ref<vbide::VBControlsEvents>& controlsEvents() const { return controlsEvents_; }
    FormResources& resources() { return resources_; }
    /// Discards the form. Objects handed out for it raise errors from now on.
    void reset();

private:
    FormDesigner& designer();
    DesignerHooks hooks();
    void announce();

    Component& component_;
    std::shared_ptr<ToolWindow> window_;
    std::vector<fernwick::Subscription> windowEvents_;
    bool wasOpen_ = false, isActivating_ = false;
    FormResources resources_;
    std::unique_ptr<FormDesigner> designer_; // created at first use
    const vbide::Ref<vbide::VBControlsEvents> controlsEvents_ = basic::make<vbide::VBControlsEvents>();
};

} // namespace host
