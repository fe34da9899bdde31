#include "Apps/common/trusted_folders.h"

namespace apps {

namespace {
constexpr const char* kTrustedFolders = "SOFTWARE\\Quinloft\\Fernwick\\TrustedFolders";
} // namespace

bool TrustedFolders::holds(const std::string& folder) const {
    std::uint32_t key = 0, type = 0, length = 0;
    if (registry_.RegOpenKeyEx(fernwick::HKEY_CURRENT_USER, kTrustedFolders, fernwick::KEY_QUERY_VALUE, key) != 0)
        return false;
    std::string none;
    const auto status = registry_.RegQueryValueEx(key, folder, type, none, length);
    registry_.RegCloseKey(key);
    return status == fernwick::ERROR_SUCCESS || status == fernwick::ERROR_MORE_DATA;
}

void TrustedFolders::add(const std::string& folder) {
    std::uint32_t key = 0, disposition = 0;
    if (registry_.RegCreateKeyEx(fernwick::HKEY_CURRENT_USER, kTrustedFolders, fernwick::KEY_ALL_ACCESS, key,
                                 disposition) != 0)
        return;
    const std::string yes{1, 0, 0, 0};
    registry_.RegSetValueEx(key, folder, fernwick::REG_DWORD, yes);
    registry_.RegCloseKey(key);
}

} // namespace apps
