#pragma once
// Which device to open, and what for.
#include "Add-in/platform/host_project.h"
#include "Components/QLPipe/base/message_values.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/pipe_services.h"
#include <functional>
#include <string>

namespace qlpipe {

struct DeviceRequest {
    /// The key of its design target.
    std::string device;
    /// Nothing for the runtime and for packages.
    basic::Ref<vbide::VBProject> project;
    /// Called with what the user should know; may be empty.
    std::function<void(PipeWarning, MessageValues)> warn;
    /// Whether the device is only looked at. Then it may be in use, and nothing changes, on it or here.
    bool isReadOnly = false;
};

} // namespace qlpipe
