#pragma once
// Finds the files that projects name.
#include "Basic/code_page.h"
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

/// Finds files for the paths of one project or group. It caches folder listings, so create one for each load and do not
/// keep it.
class PathLookup {
public:
    /// `codePage` is that of the project, in which file systems may have stored names, too.
    explicit PathLookup(basic::CodePage codePage = basic::CodePage::windows1252()) : codePage_(std::move(codePage)) {}

    /// Returns the native, canonical path of a file written relative to `folder` with "\" or "/", in UTF-8; a leading
    /// separator makes it absolute. A name without an exact match is looked up ignoring letter case, and among the names
    /// on disk that are not UTF-8. Names that are not found at all are joined as written.
    std::string find(const std::string& folder, std::string_view written);

private:
    using Names = std::unordered_map<std::string, std::string>;
    const Names& namesIn(const std::string& folder);
    std::string childOf(const std::string& folder, std::string_view name);

    std::string textOf(std::string_view nameOnDisk) const;

    basic::CodePage codePage_;
    std::unordered_map<std::string, Names> listed_;
};

/// Makes a path absolute. If no such file exists, it is looked up with "\" as separator and ignoring letter case.
std::string absolutePath(const std::string& path);

/// Returns a native path as a project in `folder` (native, canonical) writes it: relative if possible, with "\".
std::string writtenPath(const std::string& folder, const std::string& path);

} // namespace host
