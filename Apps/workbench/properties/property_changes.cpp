#include "Apps/workbench/properties/property_changes.h"

namespace workbench {

void changeAsOneStep(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component,
                     const SharedProperty& property, const PropertyChange& change) {
    history.record(component, "Change " + property.front()->Name(), [&] {
        for (const auto& one : property) change(one);
    });
}

PropertyChange toFont(const std::vector<DesignChange>& members) {
    return [members](const auto& property) { setAll(property->ObjectValue(), members); };
}

} // namespace workbench
