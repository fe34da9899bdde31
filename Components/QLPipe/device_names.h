#pragma once
// Names of files on a device.
#include <string>
#include <string_view>

namespace qlpipe {

/// The name with "/" between its parts; projects write "\".
std::string withSlashes(std::string name);

/// One part of a name: not empty, no separator, not "." or "..", no drive letter, no control character, UTF-8, at most 255
/// bytes, and no point at its beginning: such names are the storage's own.
bool isSafePart(std::string_view part) noexcept;

/// A relative name of safe parts with "/" between them.
bool isSafeName(std::string_view name) noexcept;

/// Without its extension's point, in upper case; "" for none.
std::string kindOf(std::string_view name);

/// What stands before the last "/", "" for a bare name.
std::string folderOf(const std::string& name);

/// What stands behind the last "/".
std::string lastPart(const std::string& name);

} // namespace qlpipe
