#pragma once
// A project that is read from its files once more.
#include "Host/model/host.h"

namespace workbench {

class MainWindow;

/// Closes the project without saving anything of it and opens its file again; code windows come back with their cursors.
/// Errors as those of AddFromFile; the project is closed then.
void reopenProject(host::Host& host, MainWindow& window, const vbide::Ref<vbide::VBProject>& project);

} // namespace workbench
