#pragma once
// What a program learns of the machine around it, besides its files. A host fills it; tests give fixed values.
#include "Basic/types.h"
#include "Components/Tamarik/ports/memory_store.h"
#include "Components/Tamarik/ports/settings.h"
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

/// A time in seconds since 1970 as the clocks show it here, in whole seconds.
[[nodiscard]] basic::Date localDate(std::int64_t seconds);
/// The date and time of the place where the machine is.
[[nodiscard]] basic::Date localTime();

/// The date and time in Greenwich.
[[nodiscard]] basic::Date universalTime();
/// Milliseconds of a clock that never goes back.
[[nodiscard]] double steadyTime();
void sleepFor(std::int64_t milliseconds);

/// What a device answers to Environ: the same everywhere, and nothing of the machine that simulates it. All folders are the
/// application's.
[[nodiscard]] std::vector<std::string> deviceEnvironment();

/// The words of a command line as a program receives them: those with blanks are in quotes.
[[nodiscard]] std::string commandLineOf(const std::vector<std::string>& words);

struct Surroundings {
    // A host with a clock of its own replaces all three of them, and waits by it when the program pauses.
    std::function<basic::Date()> now = localTime, universalNow = universalTime;
    std::function<double()> milliseconds = steadyTime;

    std::vector<std::string> environment = deviceEnvironment(); ///< as "NAME=value", UTF-8
    std::string commandLine;                                    ///< what Command returns, UTF-8
    std::shared_ptr<Settings> settings = std::make_shared<MemorySettings>();
    std::shared_ptr<FileStore> files = std::make_shared<MemoryStore>();

    /// The value of a variable of the environment; "" for an unknown one.
    [[nodiscard]] std::string_view variable(std::string_view name) const;
};

} // namespace tamarik
