#pragma once
// A registry value, as used by the stores, the text format and the registry functions.
#include "Add-in/platform/registry.h"
#include <cstdint>
#include <string>

namespace host {

/// True for the types of text, including symbolic links.
constexpr bool isRegText(std::uint32_t type) {
    constexpr std::uint32_t kLink = 6;
    return type == fernwick::REG_SZ || type == fernwick::REG_EXPAND_SZ || type == fernwick::REG_MULTI_SZ ||
           type == kLink;
}

/// `data` holds the bytes as set: UTF-8 with a closing NUL for text types, little-endian for numbers. Any 32-bit number
/// is a valid type.
struct RegValue {
    std::uint32_t type = fernwick::REG_NONE;
    std::string data;

    friend bool operator==(const RegValue&, const RegValue&) = default;
};

struct NamedRegValue {
    std::string name; ///< as spelled when the value was first set
    RegValue value;
};

} // namespace host
