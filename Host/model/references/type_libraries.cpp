#include "Host/model/references/type_libraries.h"
#include "Host/files/library_reference.h"
#include "Host/system/classes_key.h"
#include <algorithm>
#include <fmt/format.h>
#include <set>
#include <utility>

namespace host {
std::optional<std::string> TypeLibraries::text(const std::string& path) const { return classesText(*registry_, path); }

std::optional<TypeLibrary> TypeLibraries::version(const std::string& guid, const std::string& name) const {
    const auto number = parseLibraryVersion(name);
    if (!number) return {};
    const auto key = fmt::format("TypeLib\\{}\\{}", guid, name);
    TypeLibrary library{guid, number->major, number->minor, {}, text(key).value_or("")};
    for (const auto* platform : {"win32", "win64"})
        if (const auto path = text(fmt::format("{}\\0\\{}", key, platform)); path && library.path.empty())
            library.path = *path;
    return library;
}

std::optional<TypeLibrary> TypeLibraries::find(const std::string& guid, std::uint32_t major,
                                               std::uint32_t minor) const {
    if (!registry_ || guid.empty()) return {};
    const ClassesKey key(*registry_, "TypeLib\\" + guid);
    std::optional<TypeLibrary> best;
    for (const auto& name : key.subKeys()) {
        const auto found = version(guid, name);
        if (!found) continue;
        if (found->major == major && found->minor == minor) return found;
        if (!best || std::pair(best->major, best->minor) < std::pair(found->major, found->minor)) best = found;
    }
    return best;
}

std::vector<TypeLibrary> TypeLibraries::all() const {
    if (!registry_) return {};
    std::vector<TypeLibrary> found;
    for (const auto& name : ClassesKey(*registry_, "TypeLib").subKeys()) {
        const auto library = find(normalGuid(name), 0, 0);
        if (library && !library->description.empty()) found.push_back(*library);
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.description < b.description; });
    return found;
}

std::vector<TypeLibrary> TypeLibraries::ofControls() const {
    if (!registry_) return {};
    std::set<std::string> guids;
    for (const auto& clsid : ClassesKey(*registry_, "CLSID").subKeys())
        guids.insert(normalGuid(text("CLSID\\" + clsid + "\\TypeLib").value_or("")));
    auto found = all();
    std::erase_if(found, [&](const auto& library) { return guids.count(library.guid) == 0; });
    return found;
}

std::optional<TypeLibrary> TypeLibraries::ofProgId(const std::string& progId) const {
    if (!registry_) return {};
    const auto clsid = text(progId + "\\CLSID");
    if (!clsid) return {};
    const auto guid = normalGuid(text("CLSID\\" + *clsid + "\\TypeLib").value_or(""));
    const auto number =
        parseLibraryVersion(text("CLSID\\" + *clsid + "\\Version").value_or("")).value_or(LibraryVersion{});
    return find(guid, number.major, number.minor);
}

} // namespace host
