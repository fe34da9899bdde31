#include "Components/QLPipe/virtual_device/folder_handle.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace qlpipe {
namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t kNewFolder = 0777;

std::vector<std::string> partsOf(const std::string& name) {
    std::vector<std::string> parts;
    std::istringstream in{name};
    for (std::string part; std::getline(in, part, '/');) parts.push_back(part);
    return parts;
}

/// Returns the names in an open folder. The descriptor stays open.
std::vector<std::string> namesIn(int folder) {
    std::vector<std::string> names;
    const int own = ::openat(folder, ".", kFolderFlags);
    if (own < 0) return names;
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::fdopendir(own), ::closedir);
    if (!entries) {
        ::close(own);
        return names;
    }
    while (const auto* entry = ::readdir(entries.get()))
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names.push_back(entry->d_name);
    std::sort(names.begin(), names.end());
    return names;
}

bool isFolder(int parent, const std::string& name) {
    struct stat state {};
    return ::fstatat(parent, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(state.st_mode);
}

/// Returns 0 or an errno.
int removeTree(int parent, const std::string& name) {
    if (::unlinkat(parent, name.c_str(), 0) == 0 || errno == ENOENT) return 0;
    if (!isFolder(parent, name)) return errno;
    if (const FileDescriptor folder{::openat(parent, name.c_str(), kFolderFlags)}; folder)
        for (const auto& entry : namesIn(folder.get()))
            if (const int error = removeTree(folder.get(), entry)) return error;
    return ::unlinkat(parent, name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT ? 0 : errno;
}

std::int64_t bytesIn(int folder) {
    std::int64_t sum = 0;
    for (const auto& name : namesIn(folder)) {
        struct stat state {};
        if (::fstatat(folder, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) != 0) continue;
        if (S_ISREG(state.st_mode)) sum += state.st_size;
        if (!S_ISDIR(state.st_mode)) continue;
        if (const FileDescriptor below{::openat(folder, name.c_str(), kFolderFlags)}; below)
            sum += bytesIn(below.get());
    }
    return sum;
}

int syncFolders(int folder) {
    for (const auto& name : namesIn(folder)) {
        if (!isFolder(folder, name)) continue;
        const FileDescriptor below{::openat(folder, name.c_str(), kFolderFlags)};
        if (!below) return errno;
        if (const int error = syncFolders(below.get())) return error;
    }
    return ::fsync(folder) == 0 ? 0 : errno;
}

} // namespace

void FolderHandle::fail(int error, const std::string& name) const {
    const auto path = name.empty() ? location_ : location_ + "/" + name;
    if (error == ELOOP || error == ENOTDIR) throw transferError(kStorageLink, {{"path", path}});
    if (error == ENOSPC || error == EDQUOT) throw transferError(kDeviceDiskFull, {{"device", location_}});
    throw transferError(kStorageFailed, {{"path", path}, {"reason", std::strerror(error)}});
}

FileDescriptor FolderHandle::findFolder(const std::string& name) const {
    FileDescriptor folder{::openat(folder_.get(), ".", kFolderFlags)};
    if (!folder) fail(errno, "");
    for (const auto& part : partsOf(name)) {
        FileDescriptor next{::openat(folder.get(), part.c_str(), kFolderFlags)};
        if (!next && errno == ENOENT) return next;
        if (!next) fail(errno, name);
        folder = std::move(next);
    }
    return folder;
}

FileDescriptor FolderHandle::openFolder(const std::string& name) const {
    auto folder = findFolder(name);
    if (!folder) fail(ENOENT, name);
    return folder;
}

void FolderHandle::makeFolders(const std::string& name) const {
    std::string done;
    for (const auto& part : partsOf(name)) {
        const auto parent = openFolder(done);
        const bool isNew = ::mkdirat(parent.get(), part.c_str(), kNewFolder) == 0;
        if ((!isNew && errno != EEXIST) || (isNew && ::fsync(parent.get()) != 0)) fail(errno, name);
        done += (done.empty() ? "" : "/") + part;
    }
    openFolder(name); // an existing entry may be a link or a file
}

std::vector<std::string> FolderHandle::names(const std::string& folder) const {
    const auto found = findFolder(folder);
    return found ? namesIn(found.get()) : std::vector<std::string>();
}

bool FolderHandle::exists(const std::string& name) const {
    const auto parent = findFolder(folderOf(name));
    struct stat state {};
    return parent && ::fstatat(parent.get(), lastPart(name).c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0;
}

void FolderHandle::remove(const std::string& name) const {
    const auto parent = findFolder(folderOf(name));
    if (!parent) return;
    if (const int error = removeTree(parent.get(), lastPart(name))) fail(error, name);
}

std::int64_t FolderHandle::bytesBelow(const std::string& name) const {
    const auto parent = findFolder(folderOf(name));
    if (!parent || !isFolder(parent.get(), lastPart(name))) return 0;
    return bytesIn(openFolder(name).get());
}

void FolderHandle::syncTree(const std::string& name) const {
    if (const int error = syncFolders(openFolder(name).get())) fail(error, name);
}

} // namespace qlpipe
