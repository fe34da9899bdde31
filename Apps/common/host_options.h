#pragma once
// The host over a machine.
#include "Apps/common/installed_controls.h"
#include "Apps/common/machine.h"
#include "Host/model/host.h"

namespace apps {

/// How the host finds the add-in.
inline constexpr const char* kAddInProgId = "QLVBAddIn.Connect";
inline constexpr const char* kAddInName = "Fernwick";

/// The machine's stores, classes, controls and templates. Both outlive the host.
host::HostOptions hostOptionsOf(Machine& machine, InstalledControls& controls);

} // namespace apps
