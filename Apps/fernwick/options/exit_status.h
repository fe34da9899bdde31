#pragma once

namespace cli {

/// What the program answers to the shell.
enum ExitStatus : int {
    /// The job is done.
    kGood = 0,
    /// Errors in the project, or a project that the verb refuses.
    kProjectErrors = 1,
    /// Wrong use of the command line.
    kWrongUse = 2,
    /// Trouble with the installation or the machine.
    kMachineTrouble = 3,
    /// Of My Devices some failed.
    kSomeDevicesFailed = 4,
    /// Of My Devices all failed.
    kAllDevicesFailed = 5,
    /// Ended by Ctrl+C.
    kInterrupted = 130,
};

} // namespace cli
