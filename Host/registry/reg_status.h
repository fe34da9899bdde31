#pragma once
// The status codes of the registry functions, as on Windows.
#include <string>

namespace host {

enum class RegStatus : int {
    Success = 0,
    NotFound = 2,     ///< no such key or value
    AccessDenied = 5, ///< also for deleting a key that has subkeys
    InvalidHandle = 6,
    OutOfMemory = 14,
    InvalidParameter = 87,
    DiskFull = 112,
    BadPathname = 161, ///< a key's path begins with a backslash
    Busy = 170,        ///< another process keeps the store locked
    MoreData = 234,    ///< the buffer is too small; the required length is returned
    NoMoreItems = 259,
    Corrupt = 1015, ///< the store's file is damaged
    IoFailed = 1016,
    NotRegistryFile = 1017, ///< the file is not a store, or one of a later version
    KeyDeleted = 1018,      ///< the open key has been deleted
};

/// Describes a status for users: "access is denied".
std::string describe(RegStatus status);

/// A failure within the store. The registry functions return it as their status.
struct RegFailure {
    RegStatus status;
};

inline void requireReg(bool condition, RegStatus otherwise) {
    if (!condition) throw RegFailure{otherwise};
}

} // namespace host
