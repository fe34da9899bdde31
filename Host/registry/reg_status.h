#pragma once
// The status codes that registry functions answer with; they are those of Windows.
#include <string>

namespace host {

enum class RegStatus : int {
    Success = 0,
    NotFound = 2,     ///< no such key or value
    AccessDenied = 5, ///< also a key that still has subkeys, when it is deleted
    InvalidHandle = 6,
    OutOfMemory = 14,
    InvalidParameter = 87,
    DiskFull = 112,
    BadPathname = 161, ///< a key's path that begins with a backslash
    Busy = 170,        ///< another process kept the store locked for longer than we wait
    MoreData = 234,    ///< the buffer is too small; the length needed is told
    NoMoreItems = 259,
    Corrupt = 1015, ///< the store's file is damaged
    IoFailed = 1016,
    NotRegistryFile = 1017, ///< the store's file is something else, or of a later version
    KeyDeleted = 1018,      ///< the open key has been deleted meanwhile
};

/// What a status means, in words for a user: "access is denied".
std::string describe(RegStatus status);

/// How a failure travels inside the store; the registry functions turn it into their status.
struct RegFailure {
    RegStatus status;
};

} // namespace host
