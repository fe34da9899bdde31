#pragma once
// Names of files as projects write them, found on this machine.
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

/// Finds files for the paths of one project or group. It remembers the folders that it has listed, so it is made anew for
/// each load and not kept.
class PathLookup {
public:
    /// The native, canonical path of a file written relative to `folder` with "\" or "/" (a leading separator makes it
    /// absolute), in UTF-8. A name that is not there exactly is found without regard to letter case, name by name;
    /// what is found neither way is joined as it is written.
    std::string find(const std::string& folder, std::string_view written);

private:
    using Names = std::unordered_map<std::string, std::string>;
    const Names& namesIn(const std::string& folder);
    std::string childOf(const std::string& folder, std::string_view name);

    std::unordered_map<std::string, Names> listed_;
};

/// A path as it is given (native, or with "\\" and in another letter case when there is no such file), made absolute.
std::string absolutePath(const std::string& path);

/// A native path as a project in `folder` (native, canonical) writes it: relative where both lie on the same way, with "\".
std::string writtenPath(const std::string& folder, const std::string& path);

} // namespace host
