#pragma once
// File names on a device.
#include <string>
#include <string_view>

namespace qlpipe {

/// Returns the name with "/" as separator; projects use "\".
std::string withSlashes(std::string name);

/// Returns true for a valid part of a name: UTF-8, 1 to 255 bytes, without separators, drive letters and control
/// characters, and not beginning with a dot. Names with a leading dot are reserved for the storage.
bool isSafePart(std::string_view part) noexcept;

/// Longest name of a file on a device, without the folders that Fernwick adds: parts, and bytes.
inline constexpr std::size_t kMostParts = 32, kLongestName = 1024;

/// Folders inside each other that a device can have; a transfer makes fewer.
inline constexpr std::size_t kDeepestFolder = 2 * kMostParts;

/// Returns true for a relative name of at most kMostParts safe parts and kLongestName bytes, separated by "/".
bool isSafeName(std::string_view name) noexcept;

/// Returns the extension without its dot, in upper case, or "".
std::string kindOf(std::string_view name);

/// Returns the part before the last "/", or "" for a bare name.
std::string folderOf(const std::string& name);

/// Returns the part after the last "/".
std::string lastPart(const std::string& name);

} // namespace qlpipe
