#pragma once
// The references of a project that a device does not accept.
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/platform/host_project.h"

namespace fernwick {

using ReferenceList = std::vector<basic::Ref<vbide::Reference>>;

/// Returns the references that the target of `key` doesn't know and that no control of the device belongs to. Returns
/// none for a target without a pipe or without controls.
ReferenceList ScanReferences(Procedure& here, const DeviceServices& services,
                             const basic::Ref<vbide::VBProject>& project, const std::string& key);

} // namespace fernwick
