#pragma once
// The objects whose properties can be shown, and what they are called.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/properties/property_changes.h"
#include <QString>
#include <functional>
#include <vector>

namespace workbench {

struct InspectedObject {
    std::vector<SharedProperty> properties;
    /// Changes one of them.
    std::function<void(const SharedProperty&, const PropertyChange&)> change;
};

using InspectedControls = std::vector<vbide::Ref<vbide::VBControl>>;

/// A project has only a name here.
InspectedObject inspected(const vbide::Ref<vbide::VBProject>& project);
/// A component, or some of its controls: the properties that all of them have. Several controls have no common name. A
/// component without a designer has only a name. The history outlives the result.
InspectedObject inspected(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component,
                          const InspectedControls& controls);

bool hasDesign(vbide::VBComponent& component);
/// The name and the class: "frmHello Form", "cmdOk(1) CommandButton".
QString titleOf(const vbide::VBComponent& component);
QString titleOf(const vbide::VBControl& control);

} // namespace workbench
