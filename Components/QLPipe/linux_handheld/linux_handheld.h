#pragma once
// The family of Linux handhelds, which are reached by SSH.
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/base/device_request.h"
#include "Components/QLPipe/base/device_storage.h"
#include <memory>
#include <string>

namespace qlpipe {

/// Opens the handheld of a design target. The project's folder overrides the user's. Other transfers from this account
/// wait until it is closed.
std::unique_ptr<DeviceStorage> openLinuxHandheld(const PipeServices& services, const DeviceRequest& request);

/// Creates the settings page "Linux Handheld Settings".
basic::Ref<IQLPipeConfiguration> configureLinuxHandheld(const PipeServices& services);

} // namespace qlpipe
