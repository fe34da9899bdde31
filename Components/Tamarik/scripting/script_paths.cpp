#include "Components/Tamarik/scripting/script_paths.h"
#include <algorithm>

namespace tamarik {

namespace {

constexpr std::u16string_view kSeparators = u"\\/";

bool isSeparator(char16_t c) { return kSeparators.find(c) != std::u16string_view::npos; }

std::u16string_view withoutLastSeparators(std::u16string_view path) {
    while (endsWithSeparator(path)) path.remove_suffix(1);
    return path;
}

/// Where the last name begins. The root after a drive is no name.
std::size_t startOfName(std::u16string_view path) {
    const std::size_t drive = driveIn(path).size(), separator = path.find_last_of(kSeparators);
    return std::max(drive, separator == std::u16string_view::npos ? 0 : separator + 1);
}

} // namespace

bool endsWithSeparator(std::u16string_view path) { return !path.empty() && isSeparator(path.back()); }

std::u16string_view driveIn(std::u16string_view path) {
    if (path.size() >= 2 && path[1] == u':') return path.substr(0, 2);
    const bool isShare = path.size() > 2 && isSeparator(path[0]) && isSeparator(path[1]);
    const std::size_t server = isShare ? path.find_first_of(kSeparators, 2) : std::u16string_view::npos;
    return server == std::u16string_view::npos ? std::u16string_view()
                                               : path.substr(0, path.find_first_of(kSeparators, server + 1));
}

std::u16string buildPath(std::u16string_view path, std::u16string_view name) {
    const bool hasSeparator = !name.empty() && isSeparator(name.front());
    if (hasSeparator && endsWithSeparator(path)) path.remove_suffix(1);
    const bool joins = path.empty() || name.empty() || hasSeparator || endsWithSeparator(path) || path.back() == u':';
    return std::u16string(path) + (joins ? u"" : u"\\") + std::u16string(name);
}

std::u16string_view fileNameIn(std::u16string_view path) {
    path = withoutLastSeparators(path);
    return path.substr(std::min(path.size(), startOfName(path)));
}

std::u16string_view baseNameIn(std::u16string_view path) {
    const auto name = fileNameIn(path);
    return name.substr(0, name.rfind(u'.'));
}

std::u16string_view extensionIn(std::u16string_view path) {
    const auto name = fileNameIn(path);
    const std::size_t point = name.rfind(u'.');
    return point == std::u16string_view::npos ? std::u16string_view() : name.substr(point + 1);
}

std::u16string_view parentFolderIn(std::u16string_view path) {
    path = withoutLastSeparators(path);
    const std::size_t drive = driveIn(path).size(), name = startOfName(path);
    if (name >= path.size()) return {};
    const auto parent = withoutLastSeparators(path.substr(0, name));
    // The root of a drive keeps its separator.
    return parent.size() > drive ? parent : path.substr(0, std::min(name, drive + 1));
}

std::string shownPath(std::string_view stored, std::string_view drive) {
    std::string path(stored);
    std::replace(path.begin(), path.end(), '/', '\\');
    return std::string(drive) + "\\" + path;
}

} // namespace tamarik
