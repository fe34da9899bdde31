#include "Add-in/core/trusted_folders.h"

namespace fernwick {

namespace {
constexpr const char* kTrustedFolders = "SOFTWARE\\Quinloft\\Fernwick\\TrustedFolders";
} // namespace

bool TrustedFolders::holds(const std::string& folder) const {
    std::uint32_t key = 0, type = 0, length = 0;
    if (registry_.RegOpenKeyEx(HKEY_CURRENT_USER, kTrustedFolders, KEY_QUERY_VALUE, key) != 0) return false;
    std::string none;
    const auto status = registry_.RegQueryValueEx(key, folder, type, none, length);
    registry_.RegCloseKey(key);
    return status == ERROR_SUCCESS || status == ERROR_MORE_DATA;
}

void TrustedFolders::add(const std::string& folder) {
    std::uint32_t key = 0, disposition = 0;
    if (registry_.RegCreateKeyEx(HKEY_CURRENT_USER, kTrustedFolders, KEY_ALL_ACCESS, key, disposition) != 0) return;
    const std::string yes{1, 0, 0, 0};
    registry_.RegSetValueEx(key, folder, REG_DWORD, yes);
    registry_.RegCloseKey(key);
}

void TrustedFolders::remove(const std::string& folder) {
    std::uint32_t key = 0;
    if (registry_.RegOpenKeyEx(HKEY_CURRENT_USER, kTrustedFolders, KEY_ALL_ACCESS, key) != 0) return;
    registry_.RegDeleteValue(key, folder);
    registry_.RegCloseKey(key);
}

} // namespace fernwick
