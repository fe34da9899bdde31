#pragma once
// The objects whose properties can be shown, and what they are called.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/properties/design_history.h"
#include <QString>
#include <functional>
#include <vector>

namespace workbench {

struct InspectedObject {
    std::vector<vbide::Ref<vbide::Property>> properties;
    /// Sets one of them.
    std::function<void(const vbide::Ref<vbide::Property>&, const fernwick::Variant&)> set;
};

/// A project has only a name here.
InspectedObject inspected(const vbide::Ref<vbide::VBProject>& project);
/// A component, or one of its controls. A component without a designer has only a name. The history outlives the
/// result.
InspectedObject inspected(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component,
                          const vbide::Ref<vbide::VBControl>& control);

bool hasDesign(vbide::VBComponent& component);
/// The name and the class: "frmHello Form", "cmdOk(1) CommandButton".
QString titleOf(const vbide::VBComponent& component);
QString titleOf(const vbide::VBControl& control);

} // namespace workbench
