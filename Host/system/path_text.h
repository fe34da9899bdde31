#pragma once
// Operations on the text of paths, without access to the disk. They accept either separator and return native paths.
#include <string>
#include <string_view>

namespace host {

std::string nativePath(std::string_view path);

/// "" for a root or a bare name. Only the root ends with a separator.
std::string parentFolderName(std::string_view path);
/// The last part; "" for a root.
std::string lastName(std::string_view path);
/// The last part up to its last point.
std::string baseName(std::string_view path);
/// The text after the last point of the last part.
std::string extensionName(std::string_view path);
/// Joins the two with exactly one separator; `name` alone for an empty folder.
std::string joinedPath(std::string_view folder, std::string_view name);
/// Resolves a path against `base`. Removes ".", ".." and doubled separators.
std::string absolutePath(std::string_view base, std::string_view path);
/// True for a path with a leading separator; there are no drives on this platform.
bool isAbsolutePath(std::string_view path);

} // namespace host
