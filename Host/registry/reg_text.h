#pragma once
// The .reg format, "Windows Registry Editor Version 5.00".
#include "Host/registry/reg_value.h"
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// The first line of a .reg file.
inline constexpr std::string_view kRegHeader = "Windows Registry Editor Version 5.00";

/// The first line of a file of earlier registry editors, whose texts are in the system's code page, here 1252.
inline constexpr std::string_view kOldRegHeader = "REGEDIT4";

/// One instruction of a .reg file. Instructions are executed in the file's order.
struct RegInstruction {
    enum class Kind { MakeKey, DeleteKey, SetValue, DeleteValue };

    Kind kind = Kind::MakeKey;
    std::string key;      ///< full path as spelled: "HKEY_LOCAL_MACHINE\\SOFTWARE\\Quinloft"
    std::string name;     ///< of SetValue and DeleteValue; empty for the default value
    RegValue value;       ///< of SetValue
    std::size_t line = 0; ///< in the file, from 1; 0 if not read from a file
};

/// Reads a .reg file in little-endian UTF-16 or UTF-8, with or without a byte order mark and with any line ends, or one
/// with the old header.
/// Converts text values to UTF-8. Error 321 for a syntax error, "`fileName`:line: reason".
std::vector<RegInstruction> readRegText(std::string_view bytes, std::string_view fileName);

enum class RegTextEncoding { Utf16, Utf8 };

/// Returns a file with these instructions and CRLF line ends. Every registry editor reads UTF-16 with its byte order
/// mark. Error 5 for text data that is not UTF-8.
std::string writeRegText(const std::vector<RegInstruction>& instructions, RegTextEncoding encoding);

} // namespace host
