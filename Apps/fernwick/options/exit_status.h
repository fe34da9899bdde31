#pragma once

namespace cli {

/// The one scheme of all commands. docs/man/fernwick.1 and README.md have the same table.
enum ExitStatus : int {
    /// The work is done and nothing was found.
    kGood = 0,
    /// Errors in the project, work that was refused or failed, or something that was looked for and is not there.
    kProjectErrors = 1,
    /// A mistake on the command line: an unknown name, or a missing or unsuitable argument, such as a file that does
    /// not exist.
    kWrongUse = 2,
    /// The installation or the system: files that cannot be read or written, a full disk, no display.
    kMachineTrouble = 3,
    /// Some of My Devices failed.
    kSomeDevicesFailed = 4,
    /// All of My Devices failed.
    kAllDevicesFailed = 5,
    /// Ctrl+C.
    kInterrupted = 130,
};

} // namespace cli
