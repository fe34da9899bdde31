#include "Host/files/path_lookup.h"
#include "Basic/case_folding.h"
#include "Basic/utf8.h"
#include "Host/files/native_path.h"
#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace host {
namespace {

bool isSeparator(char c) noexcept { return c == '\\' || c == '/'; }

std::string parentOf(const std::string& folder) {
    auto parent = folderOf(folder);
    return parent.empty() ? "/" : parent;
}

bool exists(const std::string& path) noexcept { return ::access(path.c_str(), F_OK) == 0; }

} // namespace

std::string PathLookup::find(const std::string& folder, std::string_view written) {
    std::string path = folder;
    if (!written.empty() && isSeparator(written.front())) path = "/";
    while (!written.empty()) {
        const auto end = std::find_if(written.begin(), written.end(), isSeparator);
        const auto name = written.substr(0, std::size_t(end - written.begin()));
        written.remove_prefix(std::min(written.size(), name.size() + 1));
        if (name.empty() || name == ".") continue;
        path = name == ".." ? parentOf(path) : childOf(path, name);
    }
    return path;
}

std::string PathLookup::childOf(const std::string& folder, std::string_view name) {
    const auto exact = pathIn(folder, name);
    if (exists(exact)) return exact;
    const auto& names = namesIn(folder);
    const auto found = names.find(basic::foldCase(name));
    return found == names.end() ? exact : pathIn(folder, found->second);
}

const PathLookup::Names& PathLookup::namesIn(const std::string& folder) {
    const auto [entry, isNew] = listed_.try_emplace(folder);
    if (!isNew) return entry->second;
    std::error_code error;
    for (std::filesystem::directory_iterator file(folder, error), end; !error && file != end; file.increment(error)) {
        const auto name = file->path().filename().string();
        auto& kept = entry->second[basic::foldCase(textOf(name))];
        if (kept.empty() || name < kept) kept = name; // independent of the order in which the folder is listed
    }
    return entry->second;
}

/// Archives of projects are often unpacked with the bytes of the code page in which they were made.
std::string PathLookup::textOf(std::string_view nameOnDisk) const {
    for (std::size_t at = basic::asciiRun(nameOnDisk, 0); at < nameOnDisk.size();)
        if (basic::nextCharacter(nameOnDisk, at) == basic::kNoCharacter) return codePage_.decode(nameOnDisk);
    return std::string(nameOnDisk);
}

std::string absolutePath(const std::string& path) {
    auto native = path.empty() ? path : std::filesystem::absolute(path).lexically_normal().string();
    if (path.empty() || exists(native)) return native;
    std::error_code ignored;
    const auto folder = isSeparator(path.front()) ? std::string("/") : std::filesystem::current_path(ignored).string();
    return PathLookup().find(folder, path);
}

std::string writtenPath(const std::string& folder, const std::string& path) {
    const std::filesystem::path base(folder), target(path);
    auto relative = target.lexically_relative(base).string();
    if (relative.empty()) relative = path;
    std::replace(relative.begin(), relative.end(), '/', '\\');
    return relative;
}

} // namespace host
