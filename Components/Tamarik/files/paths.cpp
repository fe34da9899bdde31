#include "Components/Tamarik/files/paths.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Basic/utf16.h"
#include <algorithm>

namespace tamarik {

namespace {

bool isSeparator(char c) { return c == '\\' || c == '/'; }

bool hasDrive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':' && ((path[0] | 0x20) >= 'a' && (path[0] | 0x20) <= 'z');
}

void requireName(std::string_view name) {
    constexpr std::size_t kLongestName = 255;
    const bool isBad =
        name.size() > kLongestName || name.find_first_of(":\"<>|") != std::string_view::npos ||
        std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
    if (isBad) throw basic::RuntimeError(basic::kBadFileNameOrNumber);
}

void enter(std::vector<std::string>& names, std::string_view name) {
    if (name.empty() || name == ".") return;
    if (name != "..") {
        requireName(name);
        names.emplace_back(name);
    } else if (!names.empty()) {
        names.pop_back();
    }
}

/// The name as the store has it.
std::string storedName(const FileStore& store, const std::string& folder, const std::string& prefix,
                       const std::string& name) {
    if (store.find(prefix + name)) return name;
    auto all = store.names(folder);
    std::sort(all.begin(), all.end());
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const std::string& each) { return basic::equalNoCase(each, name); });
    return found == all.end() ? name : *found;
}

} // namespace

std::vector<std::string> namesOf(std::string_view path, const std::vector<std::string>& current) {
    if (path.empty()) throw basic::RuntimeError(basic::kBadFileNameOrNumber);
    if (hasDrive(path)) path.remove_prefix(2);
    const bool isAbsolute = !path.empty() && isSeparator(path.front());
    std::vector<std::string> names = isAbsolute ? std::vector<std::string>() : current;
    while (!path.empty()) {
        const auto end = std::find_if(path.begin(), path.end(), isSeparator);
        const auto length = static_cast<std::size_t>(end - path.begin());
        enter(names, path.substr(0, length));
        path.remove_prefix(std::min(path.size(), length + 1));
    }
    return names;
}

std::string storedPath(const FileStore& store, const std::vector<std::string>& names) {
    std::string path;
    for (const auto& name : names) {
        const std::string prefix = path.empty() ? "" : path + "/";
        path = prefix + storedName(store, path, prefix, name);
    }
    return path;
}

bool isPattern(std::string_view name) { return name.find_first_of("*?") != std::string_view::npos; }

bool fitsPattern(std::string_view name, std::string_view pattern) {
    if (pattern == "*.*") return true;
    const std::u16string text = basic::toUtf16(basic::foldCase(name)), by = basic::toUtf16(basic::foldCase(pattern));
    std::size_t at = 0, i = 0, star = std::u16string::npos, resume = 0;
    while (at < text.size()) {
        if (i < by.size() && by[i] == u'*') {
            star = i++;
            resume = at;
        } else if (i < by.size() && (by[i] == u'?' || by[i] == text[at])) {
            ++i;
            ++at;
        } else if (star != std::u16string::npos) {
            i = star + 1;
            at = ++resume;
        } else {
            return false;
        }
    }
    return std::all_of(by.begin() + static_cast<std::ptrdiff_t>(i), by.end(), [](char16_t c) { return c == u'*'; });
}

} // namespace tamarik
