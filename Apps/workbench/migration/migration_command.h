#pragma once
// Opens the migration report of the active project.
#include "Host/model/host.h"

class QWidget;

namespace workbench {

class CodeWindows;
class DesignDesk;

/// Errors go to the caller; one for a project that has no file. Code windows and desk must outlive the window.
void openMigrationReport(const vbide::Ref<vbide::VBProject>& project, CodeWindows& code, DesignDesk& design,
                         QWidget* window);

} // namespace workbench
