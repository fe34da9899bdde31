#pragma once
// The properties that a design target sets on new controls.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/design_targets.h"
#include "Add-in/platform/variant.h"
#include <string>
#include <vector>

namespace fernwick {

struct tPropertyDefault {
    std::string Name;
    /// A Long or a text.
    Variant Value;
};

/// Returns the defaults of the class `name` ("QLTextBox"), ignoring letter case, in the design target's order.
std::vector<tPropertyDefault> GetControlDefaults(const std::string& name,
                                                 const designtargetaccess::IQLDesignTarget& designTarget,
                                                 ErrorReport& errors);

} // namespace fernwick
