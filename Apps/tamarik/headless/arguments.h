#pragma once
// The command line of the program.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace headless {

/// As those of `fernwick run`.
enum ExitStatus : int { kGood = 0, kProgramErrors = 1, kWrongUse = 2, kMachineTrouble = 3 };

struct Arguments {
    std::vector<std::string> images;     ///< one, unless `runsEach`
    std::vector<std::string> forProgram; ///< what Command returns
    std::string files;
    std::optional<std::int64_t> budget;
    std::optional<std::uint32_t> seed;
    bool usesSwitch = false, runsEach = false;
};

/// Nothing for a wrong command line.
[[nodiscard]] std::optional<Arguments> parse(const std::vector<std::string>& words);

} // namespace headless
