#pragma once
// A registry value as the store, the text format and the registry functions pass it.
#include "Add-in/platform/registry.h"
#include <cstdint>
#include <string>

namespace host {

/// The types whose data are characters: the last one is a symbolic link's.
constexpr bool isRegText(std::uint32_t type) {
    constexpr std::uint32_t kLink = 6;
    return type == fernwick::REG_SZ || type == fernwick::REG_EXPAND_SZ || type == fernwick::REG_MULTI_SZ ||
           type == kLink;
}

/// `data` are the bytes that were set: UTF-8 with its closing NUL for the text types, little-endian for numbers.
/// Any 32-bit number is a type.
struct RegValue {
    std::uint32_t type = fernwick::REG_NONE;
    std::string data;

    friend bool operator==(const RegValue&, const RegValue&) = default;
};

} // namespace host
