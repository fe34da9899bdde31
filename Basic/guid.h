#pragma once
// GUIDs: the names of classes, type libraries and projects.
#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

/// A GUID under the names that Windows gives its parts. Data4 holds bytes in the order of the text.
struct GUID {
    std::uint32_t Data1 = 0;
    std::uint16_t Data2 = 0, Data3 = 0;
    std::array<std::uint8_t, 8> Data4{};
    friend auto operator<=>(const GUID&, const GUID&) = default;
};

/// A GUID's text, with braces or without, in any letter case; nothing for another text.
std::optional<GUID> parseGuid(std::string_view text) noexcept;

/// In braces and capital letters.
std::string guidText(const GUID& guid);

/// A random one (RFC 4122, version 4). Error 51 when the system has no random numbers to give.
GUID newGuid();

} // namespace basic
