#include "Basic/guid.h"
#include "Basic/runtime_error.h"
#include <charconv>
#include <cstdio>
#include <exception>
#include <random>

namespace basic {

namespace {

constexpr std::size_t kGuidLength = 36; // 8-4-4-4-12

bool isDash(std::size_t at) { return at == 8 || at == 13 || at == 18 || at == 23; }

bool isHexadecimal(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'); }

bool hasShapeOfGuid(std::string_view text) {
    if (text.size() != kGuidLength) return false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (isDash(at) ? text[at] != '-' : !isHexadecimal(text[at])) return false;
    }
    return true;
}

template <class Whole>
void readDigits(std::string_view digits, Whole& value) {
    std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
}

} // namespace

std::optional<GUID> parseGuid(std::string_view text) noexcept {
    if (text.size() == kGuidLength + 2 && text.front() == '{' && text.back() == '}') text = text.substr(1, kGuidLength);
    if (!hasShapeOfGuid(text)) return std::nullopt;
    GUID guid;
    readDigits(text.substr(0, 8), guid.Data1);
    readDigits(text.substr(9, 4), guid.Data2);
    readDigits(text.substr(14, 4), guid.Data3);
    for (std::size_t i = 0; i < guid.Data4.size(); ++i)
        readDigits(text.substr((i < 2 ? 19 : 20) + 2 * i, 2), guid.Data4[i]);
    return guid;
}

std::string guidText(const GUID& guid) {
    const auto& d = guid.Data4;
    char text[kGuidLength + 3];
    std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                  static_cast<unsigned>(guid.Data1), guid.Data2, guid.Data3, d[0], d[1], d[2], d[3], d[4], d[5], d[6],
                  d[7]);
    return text;
}

GUID newGuid() try {
    std::random_device random;
    const auto word = [&] { return static_cast<std::uint32_t>(random()); };
    GUID guid;
    guid.Data1 = word();
    guid.Data2 = static_cast<std::uint16_t>(word());
    guid.Data3 = static_cast<std::uint16_t>((word() & 0x0FFF) | 0x4000); // version 4
    for (std::uint8_t& byte : guid.Data4) byte = static_cast<std::uint8_t>(word());
    guid.Data4[0] = static_cast<std::uint8_t>((guid.Data4[0] & 0x3F) | 0x80); // RFC 4122's variant
    return guid;
} catch (const std::exception& e) { throw RuntimeError(kInternalError, e.what()); }

} // namespace basic
