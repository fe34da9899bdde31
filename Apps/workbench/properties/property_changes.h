#pragma once
// Changes of properties that one or more objects have, as steps that can be undone.
#include "Apps/workbench/properties/design_history.h"
#include <functional>
#include <vector>

namespace workbench {

/// The same property of each selected object; at least one.
using SharedProperty = std::vector<vbide::Ref<vbide::Property>>;
using PropertyChange = std::function<void(const vbide::Ref<vbide::Property>&)>;

/// Makes a change in all objects as one step of the history. If one is refused, restores the others and throws the
/// error.
void changeAsOneStep(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component,
                     const SharedProperty& property, const PropertyChange& change);

/// Sets the members of a font.
PropertyChange toFont(const std::vector<DesignChange>& members);

} // namespace workbench
