#pragma once
#include "Add-in/core/connect/Modules.h"
#include "Host/model/bars/bar_control.h"
#include <QString>

namespace workbench {

/// Returns why a command of the add-in cannot be used: this version lacks its feature, though the add-in enables it with
/// each project. Empty for all other commands.
QString whyUnavailable(const fernwick::Modules& addIn, const host::BarControl& control);

} // namespace workbench
