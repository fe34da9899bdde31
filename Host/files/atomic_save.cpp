#include "Host/files/atomic_save.h"
#include "Host/files/native_path.h"
#include "Host/files/system_error.h"
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fmt/format.h>
#include <random>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace host {
namespace {

std::string folderOfPath(const std::string& path) {
    const auto folder = folderOf(path);
    return folder.empty() ? "." : folder;
}

std::string readLink(const std::string& path) {
    std::string target(PATH_MAX, '\0');
    const auto size = ::readlink(path.c_str(), target.data(), target.size());
    target.resize(size < 0 ? 0 : std::size_t(size));
    return target;
}

/// The file that a save to `path` replaces: the end of a chain of links, even if that file does not exist yet.
std::string throughLinks(std::string path) {
    constexpr int kMostLinks = 40;
    for (int followed = 0; followed < kMostLinks; ++followed) {
        const auto target = readLink(path);
        if (target.empty()) return path;
        path = target.front() == '/' ? target : pathIn(folderOfPath(path), target);
    }
    throw systemError(ELOOP, "cannot be saved", path);
}

/// The new file while it is being written. The destructor deletes it unless it has replaced the old file.
class SavingFile {
public:
    SavingFile(const std::string& target, mode_t mode) : target_(target) {
        std::random_device random;
        for (int tries = 0; descriptor_ < 0 && tries < 100; ++tries) {
            path_ = pathIn(folderOfPath(target), fmt::format(".fernwick-{:08x}", random()));
            descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
            if (descriptor_ < 0 && errno != EEXIST) break;
        }
        if (descriptor_ < 0 && errno == ENOENT) throw missingFolder("cannot be saved", target_);
        if (descriptor_ < 0) fail(errno);
    }
    SavingFile(const SavingFile&) = delete;
    SavingFile& operator=(const SavingFile&) = delete;
    ~SavingFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
        if (!path_.empty()) ::unlink(path_.c_str());
    }

    void keepModeAndOwner(const struct stat& old) {
        // The file is saved even if its owner cannot be kept (another user's file in a shared folder).
        if (::fchown(descriptor_, old.st_uid, old.st_gid) != 0 && errno != EPERM) fail(errno);
        if (::fchmod(descriptor_, old.st_mode & 07777) != 0) fail(errno);
    }

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const auto written = ::write(descriptor_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) fail(errno);
            bytes.remove_prefix(std::size_t(written));
        }
    }

    struct stat finish() {
        struct stat state {};
        if (::fsync(descriptor_) != 0 || ::fstat(descriptor_, &state) != 0) fail(errno);
        if (::close(std::exchange(descriptor_, -1)) != 0) fail(errno);
        if (::rename(path_.c_str(), target_.c_str()) != 0) fail(errno);
        path_.clear();
        return state;
    }

private:
    [[noreturn]] void fail(int error) { throw systemError(error, "cannot be saved", target_); }

    std::string target_, path_;
    int descriptor_ = -1;
};

void syncFolder(const std::string& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return; // the folder is writable but not readable; the rename itself has succeeded
    ::fsync(descriptor);
    ::close(descriptor);
}

bool onReadOnlySystem(const std::string& path) {
    struct statvfs system {};
    return ::statvfs(path.c_str(), &system) == 0 && (system.f_flag & ST_RDONLY);
}

[[noreturn]] void refuseChangedFile(const std::string& path) {
    throw hostError(basic::kPathFileAccessError,
                    fmt::format("{}: was changed by another program since it was read; it is not overwritten", path));
}

FileStamp replaceFile(const std::string& path, std::string_view bytes, const struct stat* old) {
    constexpr mode_t kNewFile = 0666, kPrivateWhileWritten = 0600;
    SavingFile saving(path, old ? kPrivateWhileWritten : kNewFile);
    saving.write(bytes);
    if (old) saving.keepModeAndOwner(*old);
    const auto state = saving.finish();
    syncFolder(folderOfPath(path));
    return stampOf(state, bytes);
}

} // namespace

bool isReadOnly(const std::string& path) {
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0) return errno == EACCES;
    constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
    return !(state.st_mode & kAnyWriteBit) || onReadOnlySystem(path) || ::access(path.c_str(), W_OK) != 0;
}

std::optional<FileStamp> changedSince(const std::string& path, const FileStamp& asRead, std::string_view bytes) {
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0 || !S_ISREG(state.st_mode)) return {};
    if (stampOf(state, {}).sameFileState(asRead)) return {};
    const auto now = readFile(path);
    if (now.stamp.digest == asRead.digest || now.bytes == bytes) return {};
    return now.stamp;
}

void atomicMove(const std::string& from, const std::string& to) {
    const auto target = throughLinks(to);
    struct stat old {};
    const bool replaces = ::stat(target.c_str(), &old) == 0;
    if (replaces && isReadOnly(target)) throw systemError(EACCES, "is read-only", to);
    if (replaces && ::chown(from.c_str(), old.st_uid, old.st_gid) != 0 && errno != EPERM)
        throw systemError(errno, "cannot be moved", from);
    if (replaces && ::chmod(from.c_str(), old.st_mode & 07777) != 0) throw systemError(errno, "cannot be moved", from);
    if (::rename(from.c_str(), target.c_str()) != 0) {
        if (errno != EXDEV) throw systemError(errno, "cannot be moved", from);
        atomicSave(target, readFile(from).bytes);
        if (::unlink(from.c_str()) != 0) throw systemError(errno, "cannot be deleted", from);
        return;
    }
    syncFolder(folderOfPath(target));
}

FileStamp atomicSave(const std::string& path, std::string_view bytes, const std::optional<FileStamp>& asRead) {
    const auto target = throughLinks(path);
    struct stat old {};
    if (::stat(target.c_str(), &old) != 0) {
        if (errno != ENOENT) throw systemError(errno, "cannot be saved", path);
        return replaceFile(target, bytes, nullptr);
    }
    if (!S_ISREG(old.st_mode)) throw systemError(EISDIR, "cannot be saved", path);
    if (isReadOnly(target)) throw systemError(EACCES, "is read-only", path);
    const bool sameSize = std::uint64_t(old.st_size) == bytes.size();
    const bool written = asRead && !stampOf(old, {}).sameFileState(*asRead);
    if (written || sameSize) {
        const auto now = readFile(target);
        if (now.bytes == bytes) return now.stamp;
        if (written && now.stamp.digest != asRead->digest) refuseChangedFile(path);
    }
    return replaceFile(target, bytes, &old);
}

} // namespace host
