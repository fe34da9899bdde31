#pragma once
// The encodings of .reg files, and errors in these files.
#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// Throws error 321, "file:line: reason".
[[noreturn]] void regTextError(std::string_view file, std::size_t line, std::string_view reason);

/// Decodes the bytes of a .reg file to UTF-8 without a byte order mark.
std::string decodeRegFile(std::string_view bytes, std::string_view file);

} // namespace host
