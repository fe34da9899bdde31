#include "Host/system/file_state.h"
#include "Host/files/atomic_save.h"
#include "Host/system/file_error.h"
#include "Host/system/path_text.h"
#include <fcntl.h>
#include <unistd.h>

namespace host {
namespace {

constexpr auto kTimeNotSet = "its modification time cannot be set";

} // namespace

std::optional<struct ::stat> stateOf(const std::string& path) {
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0) return std::nullopt;
    return state;
}

struct ::stat fileState(const std::string& path) {
    const auto state = stateOf(path);
    if (!state) throw scriptError(errno, "cannot be examined", path);
    if (S_ISDIR(state->st_mode)) throw hostError(basic::kFileNotFound, path + ": is a folder");
    return *state;
}

void requirePlace(const std::string& path, bool overwrite) {
    const auto folder = parentFolderName(path);
    const auto around = stateOf(folder);
    if (!around || !S_ISDIR(around->st_mode))
        throw hostError(basic::kPathNotFound, folder + ": there is no such folder");
    const auto existing = stateOf(path);
    if (existing && S_ISDIR(existing->st_mode)) throw hostError(basic::kPermissionDenied, path + ": is a folder");
    if (existing && !overwrite) throw hostError(basic::kFileAlreadyExists, path + ": already exists");
    if (existing && isReadOnly(path)) throw scriptError(EACCES, "is read-only", path);
}

void setFileTime(const std::string& path, std::int64_t time) {
    const auto nanoseconds = (time % kNanosecondsPerSecond + kNanosecondsPerSecond) % kNanosecondsPerSecond;
    const auto seconds = (time - nanoseconds) / kNanosecondsPerSecond;
    const struct timespec times[2] = {{0, UTIME_OMIT}, {seconds, nanoseconds}};
    if (::utimensat(AT_FDCWD, path.c_str(), times, 0) != 0) throw scriptError(errno, kTimeNotSet, path);
}

void copyTimesAndMode(const struct ::stat& source, const std::string& path, bool isNew) {
    const struct timespec times[2] = {source.st_atim, source.st_mtim};
    if (isNew && ::chmod(path.c_str(), source.st_mode & 0777) != 0)
        throw scriptError(errno, "its mode cannot be set", path);
    if (::utimensat(AT_FDCWD, path.c_str(), times, 0) != 0) throw scriptError(errno, kTimeNotSet, path);
}

} // namespace host
