#pragma once
#include <cstdint>
#include <fmt/format.h>
#include <string>
#include <string_view>

namespace cli {

/// "1 file", "2 files".
inline std::string plural(std::uint64_t count, std::string_view one) {
    return fmt::format("{} {}{}", count, one, count == 1 ? "" : "s");
}

} // namespace cli
