#pragma once
// The icons of projects and components, sharp on every screen.
#include "Add-in/platform/host_project.h"
#include <QIcon>

namespace workbench {

QIcon projectIcon();
QIcon componentIcon(vbide::vbext_ComponentType type);

} // namespace workbench
