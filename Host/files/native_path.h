#pragma once
// Parts of native paths, without access to the disk. Paths that may also use "\" are for Host/system/path_text.h.
#include <string>
#include <string_view>

namespace host {

/// The path up to the last separator: "/" for a file in the root folder, "" for a bare name.
std::string folderOf(const std::string& path);
/// The path after the last separator.
std::string fileNameOf(const std::string& path);
/// The file name up to its last point.
std::string baseNameOf(const std::string& path);
/// Joins a folder and a name with exactly one separator.
std::string pathIn(const std::string& folder, std::string_view name);
/// Replaces the extension of the file name, or appends one. `extension` includes the point.
/// Accepts either separator, since registered paths may use "\".
std::string withExtension(const std::string& path, std::string_view extension);

} // namespace host
