#include "Host/registry/reg_status.h"
#include <fmt/format.h>

namespace host {

std::string describe(RegStatus status) {
    switch (status) {
    case RegStatus::Success: return "success";
    case RegStatus::NotFound: return "there is no such key or value";
    case RegStatus::AccessDenied: return "access is denied";
    case RegStatus::InvalidHandle: return "the key is not open";
    case RegStatus::OutOfMemory: return "the data are too large";
    case RegStatus::InvalidParameter: return "a name or its length is not allowed";
    case RegStatus::DiskFull: return "the disk is full";
    case RegStatus::BadPathname: return "a key's path does not begin with a backslash";
    case RegStatus::Busy: return "another process keeps the store locked";
    case RegStatus::MoreData: return "there is more data";
    case RegStatus::NoMoreItems: return "there are no more items";
    case RegStatus::Corrupt: return "the store's file is damaged";
    case RegStatus::IoFailed: return "the store's file could not be read or written";
    case RegStatus::NotRegistryFile: return "the store's file is not a registry store, or one of a later version";
    case RegStatus::KeyDeleted: return "the key has been deleted";
    }
    return fmt::format("status {}", static_cast<int>(status));
}

} // namespace host
