#include "Apps/fernwick/run/machine.h"
#include "Apps/fernwick/run/interruption.h"
#include <chrono>
#include <thread>

namespace cli {

Machine::Machine(Console& console, CommandLineUser& user, std::unique_ptr<fernwick::Processes> processes,
                 std::unique_ptr<host::FileSystem> files)
    : apps::Machine({user, loop, ownClipboard, std::move(processes),
                     [&console](const std::string& document) { console.err(document); }, std::move(files)}) {}

Machine::Machine(Console& console, CommandLineUser& user)
    : Machine(console, user, std::make_unique<host::Processes>([](const auto&, const auto&) { return false; }),
              std::make_unique<host::FileSystem>()) {}

void Machine::drain() {
    loop.drain([](std::int64_t nanoseconds) { std::this_thread::sleep_for(std::chrono::nanoseconds(nanoseconds)); });
}

} // namespace cli
