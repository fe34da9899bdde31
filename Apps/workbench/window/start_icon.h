#pragma once
#include <QIcon>

namespace workbench {

/// A green triangle. The style's own is black and would vanish on a dark bar.
QIcon startIcon();

} // namespace workbench
