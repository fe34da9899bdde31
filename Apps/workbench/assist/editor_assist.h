#pragma once
#include "Apps/workbench/assist/project_insight.h"
#include "Apps/workbench/code/code_windows.h"

namespace workbench {

/// Lets each code window that opens from now on help while the user types. `status` shows the error of a line that was left.
void assistEditors(CodeWindows& windows, ProjectInsight& insight, std::function<void(const QString&)> status);

} // namespace workbench
