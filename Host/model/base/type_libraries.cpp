#include "Host/model/base/type_libraries.h"
#include "Host/files/library_reference.h"
#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <utility>
#include <vector>

namespace host {
namespace {

/// A key of HKEY_CLASSES_ROOT that is open for reading while this lives.
class ClassesKey {
public:
    ClassesKey(fernwick::Registry& registry, const std::string& path) : registry_(registry) {
        if (registry.RegOpenKeyEx(fernwick::HKEY_CLASSES_ROOT, path, fernwick::KEY_READ, key_) !=
            fernwick::ERROR_SUCCESS)
            key_ = 0;
    }
    ClassesKey(const ClassesKey&) = delete;
    ClassesKey& operator=(const ClassesKey&) = delete;
    ~ClassesKey() {
        if (key_) registry_.RegCloseKey(key_);
    }
    explicit operator bool() const { return key_ != 0; }

    std::optional<std::string> defaultText() const {
        std::uint32_t type = 0, length = 0;
        std::string data;
        registry_.RegQueryValueEx(key_, "", type, data, length);
        data.resize(length);
        if (registry_.RegQueryValueEx(key_, "", type, data, length) != fernwick::ERROR_SUCCESS) return {};
        if (type != fernwick::REG_SZ && type != fernwick::REG_EXPAND_SZ) return {};
        return data.substr(0, data.find('\0'));
    }

    std::vector<std::string> subKeys() const {
        std::vector<std::string> names;
        std::string name;
        for (std::uint32_t i = 0; registry_.RegEnumKeyEx(key_, i, name) == fernwick::ERROR_SUCCESS; ++i)
            names.push_back(name);
        return names;
    }

private:
    fernwick::Registry& registry_;
    std::uint32_t key_ = 0;
};

/// "major.minor" as the registry writes a version: hexadecimal.
std::optional<std::pair<std::uint32_t, std::uint32_t>> readLibraryVersion(const std::string& text) {
    std::uint32_t major = 0, minor = 0;
    const auto* end = text.data() + text.size();
    const auto first = std::from_chars(text.data(), end, major, 16);
    if (first.ec != std::errc{} || first.ptr == end || *first.ptr != '.') return {};
    const auto second = std::from_chars(first.ptr + 1, end, minor, 16);
    if (second.ec != std::errc{} || second.ptr != end) return {};
    return std::pair(major, minor);
}

} // namespace

std::optional<std::string> TypeLibraries::text(const std::string& path) const {
    const ClassesKey key(*registry_, path);
    return key ? key.defaultText() : std::nullopt;
}

std::optional<TypeLibrary> TypeLibraries::version(const std::string& guid, const std::string& name) const {
    const auto number = readLibraryVersion(name);
    if (!number) return {};
    const auto key = fmt::format("TypeLib\\{}\\{}", guid, name);
    TypeLibrary library{guid, number->first, number->second, {}, text(key).value_or("")};
    for (const auto* platform : {"win32", "win64"})
        if (const auto path = text(fmt::format("{}\\0\\{}", key, platform)); path && library.path.empty())
            library.path = *path;
    return library;
}

std::optional<TypeLibrary> TypeLibraries::find(const std::string& guid, std::uint32_t major,
                                               std::uint32_t minor) const {
    if (!registry_ || guid.empty()) return {};
    const ClassesKey key(*registry_, "TypeLib\\" + guid);
    if (!key) return {};
    std::optional<TypeLibrary> best;
    for (const auto& name : key.subKeys()) {
        const auto found = version(guid, name);
        if (!found) continue;
        if (found->major == major && found->minor == minor) return found;
        if (!best || std::pair(best->major, best->minor) < std::pair(found->major, found->minor)) best = found;
    }
    return best;
}

std::optional<TypeLibrary> TypeLibraries::ofProgId(const std::string& progId) const {
    if (!registry_) return {};
    const auto clsid = text(progId + "\\CLSID");
    if (!clsid) return {};
    const auto guid = normalGuid(text("CLSID\\" + *clsid + "\\TypeLib").value_or(""));
    const auto number =
        readLibraryVersion(text("CLSID\\" + *clsid + "\\Version").value_or("")).value_or(std::pair(0u, 0u));
    return find(guid, number.first, number.second);
}

} // namespace host
