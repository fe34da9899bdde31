#include "Host/system/path_text.h"
#include "Host/files/native_path.h"
#include <algorithm>
#include <vector>

namespace host {
namespace {

/// The native path without trailing separators; the root keeps its separator.
std::string trimmedPath(std::string_view path) {
    auto native = nativePath(path);
    while (native.size() > 1 && native.back() == '/') native.pop_back();
    return native;
}

} // namespace

std::string nativePath(std::string_view path) {
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

std::string parentFolderName(std::string_view path) {
    const auto native = trimmedPath(path);
    return native == "/" ? "" : trimmedPath(folderOf(native));
}

std::string lastName(std::string_view path) { return fileNameOf(trimmedPath(path)); }

std::string baseName(std::string_view path) { return baseNameOf(trimmedPath(path)); }

std::string extensionName(std::string_view path) {
    const auto name = lastName(path);
    const auto point = name.rfind('.');
    return point == name.npos ? "" : name.substr(point + 1);
}

std::string joinedPath(std::string_view folder, std::string_view name) {
    if (folder.empty()) return nativePath(name);
    const auto first = std::min(name.find_first_not_of("\\/"), name.size());
    return pathIn(trimmedPath(folder), nativePath(name.substr(first)));
}

std::string absolutePath(std::string_view base, std::string_view path) {
    const auto whole = isAbsolutePath(path) ? nativePath(path) : nativePath(base) + '/' + nativePath(path);
    std::vector<std::string_view> names;
    for (std::string_view rest = whole; !rest.empty();) {
        const auto end = std::min(rest.find('/'), rest.size());
        const auto name = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (name.empty() || name == ".") continue;
        if (name != "..")
            names.push_back(name);
        else if (!names.empty())
            names.pop_back();
    }
    std::string absolute;
    for (const auto name : names) absolute.append("/").append(name);
    return absolute.empty() ? "/" : absolute;
}

bool isAbsolutePath(std::string_view path) { return path.starts_with('/') || path.starts_with('\\'); }

} // namespace host
