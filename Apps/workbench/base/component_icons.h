#pragma once
#include "Add-in/platform/host_project.h"
#include <QIcon>

namespace workbench {

/// The icon of a component of this type.
QIcon componentIcon(vbide::vbext_ComponentType type);

} // namespace workbench
