#pragma once
// GUIDs: the names of classes, type libraries and projects.
#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

/// A GUID with Windows' names for its parts. Data4 has the bytes in the order of the text.
struct GUID {
    std::uint32_t Data1 = 0;
    std::uint16_t Data2 = 0, Data3 = 0;
    std::array<std::uint8_t, 8> Data4{};
    friend std::strong_ordering operator<=>(const GUID&, const GUID&) = default;
};

/// Parses a GUID with or without braces, in any letter case; nothing for any other text.
std::optional<GUID> parseGuid(std::string_view text) noexcept;

/// Formats a GUID in braces and upper case.
std::string guidText(const GUID& guid);

/// Returns a random GUID (RFC 4122, version 4). Error 51 if the system cannot provide random numbers.
GUID newGuid();

} // namespace basic
