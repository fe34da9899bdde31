#pragma once
// Finds the files that projects name.
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

/// Finds files for the paths of one project or group. It caches folder listings, so create one for each load and do not
/// keep it.
class PathLookup {
public:
    /// Returns the native, canonical path of a file written relative to `folder` with "\" or "/", in UTF-8; a leading
    /// separator makes it absolute. A name without an exact match is looked up ignoring letter case. Names that are not
    /// found at all are joined as written.
    std::string find(const std::string& folder, std::string_view written);

private:
    using Names = std::unordered_map<std::string, std::string>;
    const Names& namesIn(const std::string& folder);
    std::string childOf(const std::string& folder, std::string_view name);

    std::unordered_map<std::string, Names> listed_;
};

/// Makes a path absolute. If no such file exists, it is looked up with "\" as separator and ignoring letter case.
std::string absolutePath(const std::string& path);

/// Returns a native path as a project in `folder` (native, canonical) writes it: relative if possible, with "\".
std::string writtenPath(const std::string& folder, const std::string& path);

} // namespace host
