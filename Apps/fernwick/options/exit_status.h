#pragma once

namespace cli {

enum ExitStatus : int {
    /// Success.
    kGood = 0,
    /// Errors in the project, or a project that the command cannot use.
    kProjectErrors = 1,
    /// Wrong usage.
    kWrongUse = 2,
    /// A problem with the installation or the system.
    kMachineTrouble = 3,
    /// Some of My Devices failed.
    kSomeDevicesFailed = 4,
    /// All of My Devices failed.
    kAllDevicesFailed = 5,
    /// Ctrl+C.
    kInterrupted = 130,
};

} // namespace cli
