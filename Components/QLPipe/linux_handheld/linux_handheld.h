#pragma once
// The family of handhelds that run Linux and are reached by SSH.
#include "Components/QLPipe/pipe_family.h"

namespace qlpipe {

/// The handheld of a design target, by the project's settings over the user's. Another transfer from this account waits.
std::unique_ptr<DeviceStorage> openLinuxHandheld(const PipeServices& services, const std::string& deviceName,
                                                 const basic::Ref<vbide::VBProject>& project);

/// The page "Linux Handheld", on which a project says how its handheld is reached.
basic::Ref<IQLPipeConfiguration> configureLinuxHandheld(const PipeServices& services);

} // namespace qlpipe
