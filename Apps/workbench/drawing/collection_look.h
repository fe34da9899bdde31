#pragma once
// The look of controls with tabs, buttons, panels or columns, which forms describe in groups of lines.
#include "Apps/workbench/drawing/control_look.h"

namespace workbench {

/// Reads what the kind needs; nothing for a kind without such parts.
void readCollection(ControlLook& look, bool ofDevice, const PropertyReader& read);

} // namespace workbench
