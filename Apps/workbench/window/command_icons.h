#pragma once
#include <QIcon>

namespace workbench {

/// The icon of a command of the window; null for one that has none, such as a submenu.
QIcon iconOfCommand(int id);

} // namespace workbench
