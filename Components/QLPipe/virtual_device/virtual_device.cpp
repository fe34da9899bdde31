#include "Components/QLPipe/virtual_device/virtual_device.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/installer.h"
#include "Components/QLPipe/virtual_device/virtual_file.h"
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <linux/fs.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <thread>
#include <unistd.h>

namespace qlpipe {
namespace {

constexpr char kLockFile[] = ".lock";
/// The temporary name of the old folder during a replacement: ".Hello.old".
constexpr std::string_view kReplacedBegin = ".", kReplacedEnd = ".old";

std::string replacedName(const std::string& name) {
    const auto folder = folderOf(name);
    return (folder.empty() ? "" : folder + "/") + std::string(kReplacedBegin) + lastPart(name) +
           std::string(kReplacedEnd);
}

/// Returns the original name, or "" for a name that replacedName does not produce, such as ".old" or "..old".
std::string replacedTitle(std::string_view name) {
    if (!name.starts_with(kReplacedBegin) || !name.ends_with(kReplacedEnd)) return {};
    if (name.size() <= kReplacedBegin.size() + kReplacedEnd.size()) return {};
    name.remove_prefix(kReplacedBegin.size());
    name.remove_suffix(kReplacedEnd.size());
    return isSafePart(name) ? std::string(name) : std::string();
}

/// The path to the device's folder may contain links, but the folder itself must not be one.
FolderHandle openRoot(const std::string& path) {
    FileDescriptor folder{::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)};
    const int error = errno;
    const bool isKnown = folder || error == ENOENT;
    FolderHandle root{std::move(folder), path};
    if (!isKnown) root.fail(error, "");
    return root;
}

FolderHandle makeRoot(const std::string& path) {
    std::error_code failed;
    std::filesystem::create_directories(path, failed);
    if (failed) throw transferError(kStorageFailed, {{"path", path}, {"reason", failed.message()}});
    return openRoot(path);
}

/// Returns the bytes that are free on the disk of a path, whose last parts need not exist; -1 if unknown.
std::int64_t freeOnDisk(std::filesystem::path path) {
    struct statvfs disk {};
    while (::statvfs(path.c_str(), &disk) != 0) {
        if (errno != ENOENT || !path.has_relative_path()) return -1;
        path = path.parent_path();
    }
    return std::int64_t(disk.f_bavail) * std::int64_t(disk.f_frsize);
}

} // namespace

VirtualDevice::VirtualDevice(const std::string& folder, std::optional<std::int64_t> memory,
                             std::chrono::milliseconds patience)
    : root_(makeRoot(folder)), memory_(memory) {
    lock(patience);
    recover();
}

std::unique_ptr<VirtualDevice> VirtualDevice::openToRead(const std::string& folder,
                                                         std::optional<std::int64_t> memory) {
    return std::unique_ptr<VirtualDevice>(new VirtualDevice{openRoot(folder), memory});
}

void VirtualDevice::lock(std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds kPause{20};
    const auto folder = root_.openFolder("");
    lock_ = FileDescriptor{::openat(folder.get(), kLockFile, O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kNewFileMode)};
    if (!lock_) root_.fail(errno, kLockFile);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (::flock(lock_.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) root_.fail(errno, kLockFile);
        if (std::chrono::steady_clock::now() >= end) throw transferError(kDeviceBusy, {{"device", location()}});
        std::this_thread::sleep_for(kPause);
    }
}

void VirtualDevice::recover() {
    remove(kStagingFolder);
    recoverFolder("");
    recoverFolder(kApplicationsFolder);
}

/// Undoes a replacement that was interrupted between its two renames; completes one that lacks only the removal.
void VirtualDevice::recoverFolder(const std::string& folder) {
    for (const auto& name : list(folder)) {
        const auto title = replacedTitle(name);
        if (title.empty()) continue;
        const auto prefix = folder.empty() ? "" : folder + "/";
        const auto original = prefix + title;
        if (exists(original))
            remove(prefix + name);
        else
            rename(prefix + name, original);
    }
}

/// Limited by the free space of the disk.
std::int64_t VirtualDevice::freeSpaceFor(const std::string& folder) {
    const auto onDisk = freeOnDisk(location());
    if (!memory_) return onDisk;
    // What an interrupted transfer left does not count, because the next one removes it.
    std::int64_t used = folder == kStagingFolder ? 0 : -root_.bytesBelow(folder);
    for (const char* part : {kApplicationsFolder, kDeviceFontsFolder, kRuntimeFolder}) used += root_.bytesBelow(part);
    const auto inMemory = std::max<std::int64_t>(*memory_ - used, 0);
    return onDisk >= 0 ? std::min(inMemory, onDisk) : inMemory;
}

std::string VirtualDevice::read(const std::string& file) {
    const auto folder = root_.openFolder(folderOf(file));
    const FileDescriptor source{
        ::openat(folder.get(), lastPart(file).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)};
    if (!source) root_.fail(errno, file);
    struct stat state {};
    if (::fstat(source.get(), &state) != 0) root_.fail(errno, file);
    if (state.st_size > kLargestManifest)
        throw transferError(kStorageFileTooLarge, {{"path", location() + "/" + file}});
    std::string bytes(std::size_t(state.st_size), '\0');
    const auto count = ::pread(source.get(), bytes.data(), bytes.size(), 0);
    if (count < 0) root_.fail(errno, file);
    bytes.resize(std::size_t(count));
    return bytes;
}

std::unique_ptr<StorageFile> VirtualDevice::create(const std::string& file) {
    return std::make_unique<VirtualFile>(root_, file);
}

void VirtualDevice::rename(const std::string& from, const std::string& to) {
    const auto source = root_.openFolder(folderOf(from)), target = root_.openFolder(folderOf(to));
    if (::renameat(source.get(), lastPart(from).c_str(), target.get(), lastPart(to).c_str()) != 0)
        root_.fail(errno, to);
    if (::fsync(target.get()) != 0 || ::fsync(source.get()) != 0) root_.fail(errno, to);
}

void VirtualDevice::replaceFile(const std::string& from, const std::string& to) { rename(from, to); }

/// Returns false if the file system cannot exchange two names atomically.
bool VirtualDevice::exchange(const std::string& from, const std::string& to) {
    const auto source = root_.openFolder(folderOf(from)), target = root_.openFolder(folderOf(to));
    if (::renameat2(source.get(), lastPart(from).c_str(), target.get(), lastPart(to).c_str(), RENAME_EXCHANGE) != 0) {
        if (errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP) return false;
        root_.fail(errno, to);
    }
    if (::fsync(target.get()) != 0 || ::fsync(source.get()) != 0) root_.fail(errno, to);
    return true;
}

void VirtualDevice::replaceFolder(const std::string& from, const std::string& to) {
    root_.syncTree(from);
    if (!exists(to)) return rename(from, to);
    if (exchange(from, to)) return remove(from);
    const auto old = replacedName(to);
    rename(to, old);
    try {
        rename(from, to);
    } catch (const TransferError&) {
        rename(old, to);
        throw;
    }
    remove(old);
}

} // namespace qlpipe
