#include "Add-in/build/type_lib_dll.h"
#include "Add-in/core/guids.h"
#include "Basic/conversions.h"
#include "Basic/number_text.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

constexpr std::int32_t kFound = 0;
constexpr std::int32_t kNotFound = 1;

std::int32_t registeredDll(modRegistry2& registry, std::uint32_t version, std::string& path) {
    const auto value = registry.GetStringValue(version, "");
    if (!value.ok()) return kNotFound;
    path = value.text;
    return value.type == REG_SZ && basic::LCase(basic::Right(path, 4)) == ".dll" ? kFound : kNotFound;
}

std::int32_t highestVersion(const std::vector<std::string>& versions) {
    std::int32_t highest = -1;
    for (const auto& version : versions)
        if (basic::IsNumeric(version)) highest = std::max<std::int32_t>(highest, basic::CInt(version));
    return highest;
}

std::int32_t lookUpTypeLib(modRegistry2& registry, const std::string& guid, int major, int minor, std::string& path) {
    const std::string library = "TypeLib\\" + guid;
    const RegistryKey all{registry, registry.OpenKey(HKEY_CLASSES_ROOT, library, KEY_READ)};
    if (!all) return kNotFound;

    const std::string own = fmt::format("{}\\{}.{}\\0\\win32", library, major, minor);
    if (const RegistryKey version{registry, registry.OpenKey(HKEY_CLASSES_ROOT, own, KEY_READ)})
        return registeredDll(registry, version.handle(), path);

    const auto versions = registry.EnumKeys(all.handle());
    if (!versions || highestVersion(*versions) < 0) return kNotFound;
    // A library of another version is not a substitute: the caller falls back to the DLL with the name of the
    // description.
    return basic::kTypeMismatch;
}

} // namespace

std::int32_t FindTypeLibDll(modRegistry2& registry, std::string guid, int major, int minor, std::string& path) try {
    NormaliseGuidText(guid);
    return lookUpTypeLib(registry, guid, major, minor, path);
} catch (const basic::RuntimeError& error) { return error.Number; }

} // namespace fernwick
