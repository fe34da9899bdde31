#pragma once
#include "Apps/workbench/code/code_windows.h"
#include "Host/model/host.h"

namespace workbench {

/// Closes the project without saving it and opens its file again. Its code windows open again with their cursors.
/// Errors as those of AddFromFile, which leave the project closed.
void reopenProject(host::Host& host, CodeWindows& code, const vbide::Ref<vbide::VBProject>& project);

} // namespace workbench
