#include "Add-in/core/modRegistry2.h"

namespace fernwick {

namespace {
constexpr std::uint32_t kCreateAccess = 15;
} // namespace

std::uint32_t modRegistry2::OpenKey(std::uint32_t root, const std::string& subKey, std::uint32_t access) {
    std::uint32_t key = 0;
    return registry_.RegOpenKeyEx(root, subKey, access, key) == ERROR_SUCCESS ? key : 0;
}

bool modRegistry2::CloseKey(std::uint32_t key) { return registry_.RegCloseKey(key) == ERROR_SUCCESS; }

std::int32_t modRegistry2::CreateKey(std::uint32_t root, const std::string& subKey, std::uint32_t& key) {
    key = 0;
    std::uint32_t created = 0, disposition = 0;
    const auto status = registry_.RegCreateKeyEx(root, subKey, kCreateAccess, created, disposition);
    if (status == ERROR_SUCCESS) key = created;
    return status;
}

std::uint32_t modRegistry2::OpenOrCreateKey(std::uint32_t root, const std::string& subKey, std::uint32_t access) {
    if (const auto key = OpenKey(root, subKey, access)) return key;
    std::uint32_t created = 0;
    if (CreateKey(root, subKey, created) != ERROR_SUCCESS) return 0;
    CloseKey(created);
    return OpenKey(root, subKey, access);
}

std::optional<std::vector<std::string>> modRegistry2::EnumKeys(std::uint32_t key) {
    RegistryKeyInfo info;
    if (registry_.RegQueryInfoKey(key, info) != ERROR_SUCCESS) return std::nullopt;
    std::vector<std::string> names(info.subKeys);
    for (std::uint32_t i = 0; i < info.subKeys; ++i)
        if (registry_.RegEnumKeyEx(key, i, names[i]) != ERROR_SUCCESS) return std::nullopt;
    return names;
}

} // namespace fernwick
