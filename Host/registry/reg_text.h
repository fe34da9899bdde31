#pragma once
// The text format of registry editors, "Windows Registry Editor Version 5.00".
#include "Host/registry/reg_value.h"
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// One instruction of a .reg file. They take effect in the file's order.
struct RegInstruction {
    enum class Kind { MakeKey, DeleteKey, SetValue, DeleteValue };

    Kind kind = Kind::MakeKey;
    std::string key;      ///< whole path with the root's name, as spelled: "HKEY_LOCAL_MACHINE\\SOFTWARE\\Quinloft"
    std::string name;     ///< of SetValue and DeleteValue; empty is the key's default value
    RegValue value;       ///< of SetValue
    std::size_t line = 0; ///< of the file, from 1; 0 for one that came from no file
};

/// Reads a .reg file: UTF-16 with little-endian byte order, or UTF-8, each with or without a byte order mark; any
/// line end. Text values become UTF-8. Error 321 for anything that the format does not have, its description
/// "`fileName`:line: reason".
std::vector<RegInstruction> readRegText(std::string_view bytes, std::string_view fileName);

enum class RegTextEncoding { Utf16, Utf8 };

/// The file that reads back as `instructions`, with CRLF. UTF-16 with its mark is what every registry editor takes.
/// Error 5 for text data that are not UTF-8.
std::string writeRegText(const std::vector<RegInstruction>& instructions, RegTextEncoding encoding);

} // namespace host
