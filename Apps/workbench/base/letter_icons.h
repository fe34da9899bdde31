#pragma once
// Pictures of projects and components, drawn as fine as the screen is.
#include "Add-in/platform/host_project.h"
#include <QIcon>

namespace workbench {

QIcon projectIcon();
QIcon componentIcon(vbide::vbext_ComponentType type);

} // namespace workbench
