#pragma once
// What a program learns of the machine around it, besides its files. A host fills it; tests give fixed values.
#include "Basic/types.h"
#include "Components/Tamarik/ports/memory_store.h"
#include "Components/Tamarik/ports/settings.h"
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tamarik {

/// A time in seconds since 1970 as the clocks show it here, in whole seconds.
[[nodiscard]] basic::Date localDate(std::int64_t seconds);
/// The date and time of the place where the machine is.
[[nodiscard]] basic::Date localTime();

/// The words of a command line as a program receives them: those with blanks are in quotes.
[[nodiscard]] std::string commandLineOf(const std::vector<std::string>& words);

struct Surroundings {
    std::function<basic::Date()> now = localTime;
    std::vector<std::string> environment; ///< as "NAME=value", UTF-8
    std::string commandLine;              ///< what Command returns, UTF-8
    std::shared_ptr<Settings> settings = std::make_shared<MemorySettings>();
    std::shared_ptr<FileStore> files = std::make_shared<MemoryStore>();
};

} // namespace tamarik
