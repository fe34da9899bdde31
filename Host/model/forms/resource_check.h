#pragma once
// Checks the resource references of a form.
#include "Host/model/forms/designer_state.h"

namespace host {

/// Returns a warning for each reference to a missing file, beyond its end, or to a record of the wrong kind. Copied and
/// renamed forms have such references, so they are not errors.
std::vector<FormProblem> checkResources(DesignerState& state);

} // namespace host
