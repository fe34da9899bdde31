#pragma once
// The registry functions of the system.
#include <cstdint>
#include <string>

namespace fernwick {

enum RegistryRoot : std::uint32_t {
    HKEY_CLASSES_ROOT = 0x80000000,
    HKEY_CURRENT_USER = 0x80000001,
    HKEY_LOCAL_MACHINE = 0x80000002,
};

enum RegistryType : std::uint32_t {
    REG_NONE = 0,
    REG_SZ = 1,
    REG_EXPAND_SZ = 2,
    REG_BINARY = 3,
    REG_DWORD = 4,
    REG_DWORD_BIG_ENDIAN = 5,
    REG_MULTI_SZ = 7,
};

enum RegistryAccess : std::uint32_t {
    KEY_QUERY_VALUE = 1,
    KEY_SET_VALUE = 2,
    KEY_READ = 0x20019,
    KEY_ALL_ACCESS = 0xF003F,
};

enum RegistryStatus : std::int32_t {
    ERROR_SUCCESS = 0,
    ERROR_FILE_NOT_FOUND = 2,
    ERROR_ACCESS_DENIED = 5,
    ERROR_INVALID_HANDLE = 6,
    ERROR_MORE_DATA = 234,
    ERROR_NO_MORE_ITEMS = 259,
    ERROR_CANTOPEN = 1011,
};

/// Result of RegQueryInfoKey; lengths are in bytes, without a terminating NUL.
struct RegistryKeyInfo {
    std::uint32_t subKeys = 0;
    std::uint32_t longestSubKeyName = 0;
    std::uint32_t values = 0;
    std::uint32_t longestValueName = 0;
    std::uint32_t longestValueData = 0;
};

/// Handles are 32-bit; 0 is none, and a root is a handle that is always open. Data are bytes; types 1, 2 and 7 are text
/// with a terminating NUL. Keys and values match without regard to letter case and keep their spelling. "" is a key's
/// default value. All functions return a status and never raise an error.
class Registry {
public:
    virtual ~Registry() = default;

    virtual std::int32_t RegOpenKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                      std::uint32_t& result) = 0;
    virtual std::int32_t RegCreateKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                        std::uint32_t& result, std::uint32_t& disposition) = 0;
    virtual std::int32_t RegCloseKey(std::uint32_t key) = 0;
    virtual std::int32_t RegQueryInfoKey(std::uint32_t key, RegistryKeyInfo& info) = 0;
    /// 259 after the last one.
    virtual std::int32_t RegEnumKeyEx(std::uint32_t key, std::uint32_t index, std::string& name) = 0;
    virtual std::int32_t RegEnumValue(std::uint32_t key, std::uint32_t index, std::string& name, std::uint32_t& type,
                                      std::string& data) = 0;
    /// Fills `data` with the value if it fits, and sets `length` to the value's length. If the value is longer than
    /// `data`, returns 234 and leaves `data` unchanged.
    virtual std::int32_t RegQueryValueEx(std::uint32_t key, const std::string& name, std::uint32_t& type,
                                         std::string& data, std::uint32_t& length) = 0;
    virtual std::int32_t RegSetValueEx(std::uint32_t key, const std::string& name, std::uint32_t type,
                                       const std::string& data) = 0;
    virtual std::int32_t RegDeleteValue(std::uint32_t key, const std::string& name) = 0;
    /// With all its subkeys.
    virtual std::int32_t RegDeleteKey(std::uint32_t key, const std::string& subKey) = 0;
};

} // namespace fernwick
