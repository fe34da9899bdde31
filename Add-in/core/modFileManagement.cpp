#include "Add-in/core/modFileManagement.h"
#include "Basic/case_folding.h"
#include <algorithm>

namespace fernwick {

std::string GetRelativePath(const FileSystemObject& files, const std::string& base, const std::string& path) {
    if (!files.IsAbsolute(path)) return path;
    const auto target = files.Canonical(path);
    std::string way;
    for (auto folder = files.GetAbsolutePathName(base); !folder.empty(); folder = files.GetParentFolderName(folder)) {
        const auto beginning = files.WithSeparator(files.Canonical(folder));
        if (basic::startsWithNoCase(target, beginning)) {
            auto rest = target.substr(std::min(beginning.size(), target.size()));
            std::replace(rest.begin(), rest.end(), '/', '\\');
            return way + rest;
        }
        way += "..\\";
    }
    return path;
}

} // namespace fernwick
