#pragma once
#include "Apps/common/installed_controls.h"
#include "Apps/common/machine.h"
#include "Host/model/host.h"

namespace apps {

/// The registrations of the add-in and its sibling in the host.
inline constexpr const char* kAddInProgId = "QLVBAddIn.Connect";
inline constexpr const char* kAddInName = "Fernwick";
inline constexpr const char* kImporterProgId = "QLProjectImport.Connect";
inline constexpr const char* kImporterName = "Fernwick Project Converter";

/// Returns options for the machine's stores, classes, controls and templates. Both arguments must outlive the host.
host::HostOptions hostOptionsOf(Machine& machine, InstalledControls& controls);

} // namespace apps
