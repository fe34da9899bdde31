#pragma once
// Whether the resource references of a form find what they name.
#include "Host/model/forms/designer_state.h"

namespace host {

/// A warning for each reference to a missing file, beyond its end, or to bytes that are no record of the property's
/// kind. Copied and renamed forms have them, so they never keep a form from being used.
std::vector<FormProblem> checkResources(DesignerState& state);

} // namespace host
