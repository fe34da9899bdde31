#include "Apps/fernwick/run/machine.h"
#include "Apps/fernwick/run/interruption.h"
#include <chrono>
#include <thread>

namespace cli {

Machine::Machine(Console& console, CommandLineUser& user, host::Processes::Permission mayRun)
    : apps::Machine({user, loop, ownClipboard, std::move(mayRun), wasInterrupted,
                     [&console](const std::string& document) { console.err(document); }}) {}

void Machine::drain() {
    loop.drain([](std::int64_t nanoseconds) { std::this_thread::sleep_for(std::chrono::nanoseconds(nanoseconds)); });
}

} // namespace cli
