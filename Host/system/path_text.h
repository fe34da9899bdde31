#pragma once
// Paths as texts, without a look at the disk. Either separator may come in; what goes out is native.
#include <string>
#include <string_view>

namespace host {

std::string nativePath(std::string_view path);

/// "" for a root or a bare name; no separator at the end, but for the root itself.
std::string parentFolderName(std::string_view path);
/// The last part; "" for a root.
std::string lastName(std::string_view path);
/// The last part without what stands from its last point on.
std::string baseName(std::string_view path);
/// What stands behind the last point of the last part.
std::string extensionName(std::string_view path);
/// Exactly one separator between the two, whatever they bring along; `name` alone for an empty folder.
std::string joinedPath(std::string_view folder, std::string_view name);
/// Absolute from `base`, without ".", ".." and doubled separators.
std::string absolutePath(std::string_view base, std::string_view path);
/// A leading separator, as this is a platform without drives.
bool isAbsolutePath(std::string_view path);

} // namespace host
