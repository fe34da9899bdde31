#pragma once
#include "Apps/workbench/code/code_windows.h"
#include "Host/model/host.h"

namespace workbench {

/// The Window menu: goes from one code window to another and closes them; its list is made when it comes up.
void addWindowMenu(host::Host& host, CodeWindows& windows);

} // namespace workbench
