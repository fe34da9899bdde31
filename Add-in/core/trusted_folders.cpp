#include "Add-in/core/trusted_folders.h"
#include <algorithm>

namespace fernwick {

namespace {
constexpr const char* kTrustedFolders = "SOFTWARE\\Quinloft\\Fernwick\\TrustedFolders";
} // namespace

/// Returns 0 if there is no such key.
std::uint32_t TrustedFolders::open(std::uint32_t access) const {
    std::uint32_t key = 0;
    const auto status = registry_.RegOpenKeyEx(HKEY_CURRENT_USER, kTrustedFolders, access, key);
    return status == ERROR_SUCCESS ? key : 0;
}

/// The store ignores letter case in names, folders do not.
bool TrustedFolders::holds(const std::string& folder) const {
    const auto folders = list();
    return std::find(folders.begin(), folders.end(), folder) != folders.end();
}

std::vector<std::string> TrustedFolders::list() const {
    std::vector<std::string> folders;
    const auto key = open(KEY_QUERY_VALUE);
    if (key == 0) return folders;
    std::string name, data;
    std::uint32_t type = 0;
    for (std::uint32_t i = 0; registry_.RegEnumValue(key, i, name, type, data) == ERROR_SUCCESS; ++i)
        folders.push_back(name);
    registry_.RegCloseKey(key);
    return folders;
}

bool TrustedFolders::add(const std::string& folder) {
    std::uint32_t key = 0, disposition = 0;
    if (registry_.RegCreateKeyEx(HKEY_CURRENT_USER, kTrustedFolders, KEY_ALL_ACCESS, key, disposition) != ERROR_SUCCESS)
        return false;
    const std::string yes{1, 0, 0, 0};
    (void)registry_.RegDeleteValue(key, folder); // which may be spelled otherwise
    const auto status = registry_.RegSetValueEx(key, folder, REG_DWORD, yes);
    registry_.RegCloseKey(key);
    return status == ERROR_SUCCESS;
}

bool TrustedFolders::remove(const std::string& folder) {
    if (!holds(folder)) return true;
    const auto key = open(KEY_ALL_ACCESS);
    if (key == 0) return false;
    const auto status = registry_.RegDeleteValue(key, folder);
    registry_.RegCloseKey(key);
    return status == ERROR_SUCCESS;
}

} // namespace fernwick
