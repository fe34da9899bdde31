#pragma once
// The system's services for the command line.
#include "Apps/common/machine.h"
#include "Apps/fernwick/run/command_line_user.h"
#include "Host/system/clipboard.h"
#include "Host/system/event_loop.h"

namespace cli {

/// Replacements for the services of a desktop.
struct NoDesktop {
    host::Clock monotonic;
    host::EventLoop loop{monotonic};
    host::Clipboard ownClipboard;
};

class Machine : private NoDesktop, public apps::Machine {
public:
    Machine(Console& console, CommandLineUser& user, std::unique_ptr<fernwick::Processes> processes,
            std::unique_ptr<host::FileSystem> files);
    /// Without a project: no command lines are run.
    Machine(Console& console, CommandLineUser& user);
    /// Runs the event loop until nothing is due.
    void drain();
};

} // namespace cli
