#pragma once
#include "Apps/workbench/assist/project_insight.h"
#include "Apps/workbench/code/code_windows.h"
#include "Components/QLToolkit/insight/renaming.h"

namespace workbench {

/// Writes the new name into the code modules: all of them or, after an error, none. In an open code window it is one step to
/// undo. Returns why that is not possible, or "".
QString applyRenaming(CodeWindows& windows, const ProjectInsight::Program& program, const qltoolkit::Renaming& renaming,
                      const std::string& newName);

} // namespace workbench
