#include "Components/QLPipe/virtual_device/folder_handle.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
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

/// Sets the names in an open folder, whose descriptor stays open. Returns 0 or an errno.
int namesIn(int folder, std::vector<std::string>& names) {
    FileDescriptor own{::openat(folder, ".", kFolderFlags)};
    if (!own) return errno;
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::fdopendir(own.get()), ::closedir);
    if (!entries) return errno;
    own.release();
    errno = 0;
    while (const auto* entry = ::readdir(entries.get()))
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names.push_back(entry->d_name);
    std::sort(names.begin(), names.end());
    return errno;
}

bool isFolder(int parent, const std::string& name) {
    struct stat state {};
    return ::fstatat(parent, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(state.st_mode);
}

/// Removes a folder tree of any depth with few open descriptors: folders that are too deep are moved up first.
class TreeRemoval {
public:
    /// Returns 0 or an errno.
    int remove(int parent, const std::string& name) {
        if (::unlinkat(parent, name.c_str(), 0) == 0 || errno == ENOENT) return 0;
        if (!isFolder(parent, name)) return errno;
        FileDescriptor folder{::openat(parent, name.c_str(), kFolderFlags)};
        if (!folder) return errno;
        const bool isTop = top_ < 0;
        if (isTop) top_ = folder.get();
        int error = 0;
        do {
            hasMoved_ = false;
            error = empty(folder.get());
        } while (error == 0 && isTop && hasMoved_);
        if (error != 0) return error;
        return ::unlinkat(parent, name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT ? 0 : errno;
    }

private:
    int empty(int folder) {
        std::vector<std::string> names;
        if (const int error = namesIn(folder, names)) return error;
        ++depth_;
        for (const auto& entry : names) {
            const bool isTooDeep = depth_ > kDeepestFolder && isFolder(folder, entry);
            if (const int error = isTooDeep ? moveUp(folder, entry) : remove(folder, entry)) return error;
        }
        --depth_;
        return 0;
    }
    int moveUp(int folder, const std::string& name) {
        hasMoved_ = true;
        for (;;) {
            const auto place = "moved" + std::to_string(moved_++);
            if (::renameat2(folder, name.c_str(), top_, place.c_str(), RENAME_NOREPLACE) == 0) return 0;
            if (errno != EEXIST) return errno;
        }
    }

    int top_ = -1;
    std::size_t depth_ = 0, moved_ = 0;
    bool hasMoved_ = false;
};

/// Adds the size of all files below to `sum`. Returns 0 or an errno.
int addBytesIn(int folder, std::int64_t& sum, std::size_t depth) {
    std::vector<std::string> names;
    if (depth > kDeepestFolder) return ENAMETOOLONG;
    if (const int error = namesIn(folder, names)) return error;
    for (const auto& name : names) {
        struct stat state {};
        if (::fstatat(folder, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) != 0) continue;
        if (S_ISREG(state.st_mode)) sum += state.st_size;
        if (!S_ISDIR(state.st_mode)) continue;
        const FileDescriptor below{::openat(folder, name.c_str(), kFolderFlags)};
        if (!below) return errno;
        if (const int error = addBytesIn(below.get(), sum, depth + 1)) return error;
    }
    return 0;
}

int syncFolders(int folder) {
    std::vector<std::string> names;
    if (const int error = namesIn(folder, names)) return error;
    for (const auto& name : names) {
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
    if (!folder_) return FileDescriptor{};
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
    std::vector<std::string> names;
    const auto found = findFolder(folder);
    if (!found) return names;
    if (const int error = namesIn(found.get(), names)) fail(error, folder);
    return names;
}

bool FolderHandle::exists(const std::string& name) const {
    const auto parent = findFolder(folderOf(name));
    struct stat state {};
    return parent && ::fstatat(parent.get(), lastPart(name).c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0;
}

void FolderHandle::remove(const std::string& name) const {
    const auto parent = findFolder(folderOf(name));
    if (!parent) return;
    if (const int error = TreeRemoval{}.remove(parent.get(), lastPart(name))) fail(error, name);
}

std::int64_t FolderHandle::bytesBelow(const std::string& name) const {
    const auto parent = findFolder(folderOf(name));
    if (!parent || !isFolder(parent.get(), lastPart(name))) return 0;
    std::int64_t sum = 0;
    if (const int error = addBytesIn(openFolder(name).get(), sum, 0)) fail(error, name);
    return sum;
}

void FolderHandle::syncTree(const std::string& name) const {
    if (const int error = syncFolders(openFolder(name).get())) fail(error, name);
}

} // namespace qlpipe
