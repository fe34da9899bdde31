#include "Add-in/core/modFileManagement.h"
#include "Basic/case_folding.h"
#include <algorithm>
#include <optional>

namespace fernwick {

namespace {

std::optional<std::string> afterFolder(const FileSystemObject& files, const std::string& folder,
                                       const std::string& canonicalPath) {
    const auto beginning = files.WithSeparator(files.Canonical(folder));
    if (!basic::startsWithNoCase(canonicalPath, beginning)) return std::nullopt;
    auto rest = canonicalPath.substr(std::min(beginning.size(), canonicalPath.size()));
    std::replace(rest.begin(), rest.end(), '/', '\\');
    return rest;
}

} // namespace

std::string GetRelativePath(const FileSystemObject& files, const std::string& base, const std::string& path) {
    if (!files.IsAbsolute(path)) return path;
    const auto target = files.Canonical(path);
    std::string way;
    for (auto folder = files.GetAbsolutePathName(base); !folder.empty(); folder = files.GetParentFolderName(folder)) {
        if (const auto rest = afterFolder(files, folder, target)) return way + *rest;
        way += "..\\";
    }
    return path;
}

std::string PathBelow(const FileSystemObject& files, const std::string& folder, const std::string& path) {
    if (folder.empty()) return {};
    return afterFolder(files, folder, files.Canonical(path)).value_or("");
}

} // namespace fernwick
