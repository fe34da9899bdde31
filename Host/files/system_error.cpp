#include "Host/files/system_error.h"
#include <cerrno>
#include <fmt/format.h>
#include <system_error>

namespace host {

int fileErrorNumber(int error) noexcept {
    switch (error) {
    case ENOENT: return basic::kFileNotFound;
    case ENOTDIR: return basic::kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR: return basic::kPathFileAccessError;
    case ETXTBSY:
    case EBUSY: return basic::kPermissionDenied;
    case EEXIST: return basic::kFileAlreadyExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return basic::kDiskFull;
    case ENOMEM: return basic::kOutOfMemory;
    case ENAMETOOLONG:
    case ELOOP: return basic::kPathFileAccessError;
    default: return basic::kDeviceIOError;
    }
}

basic::RuntimeError systemError(int error, const std::string& what, const std::string& path) {
    const auto reason = std::error_code(error, std::generic_category()).message();
    return basic::RuntimeError(fileErrorNumber(error), fmt::format("{}: {}: {}", path, what, reason), "VBIDE", error);
}

basic::RuntimeError missingFolder(const std::string& what, const std::string& path) {
    auto error = systemError(ENOENT, what, path);
    error.Number = basic::kPathNotFound;
    return error;
}

basic::RuntimeError hostError(int number, std::string description) {
    return basic::RuntimeError(number, std::move(description), "VBIDE");
}

} // namespace host
