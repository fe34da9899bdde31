#pragma once
#include "Apps/workbench/code/code_windows.h"
#include "Host/model/host.h"

namespace workbench {

/// Lists the open tabs in the Window menu each time it is shown.
void listWindows(host::Host& host, CodeWindows& windows);

} // namespace workbench
