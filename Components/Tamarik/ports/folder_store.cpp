#include "Components/Tamarik/ports/folder_store.h"
#ifdef __linux__
#include "Basic/runtime_error.h"
#include "Components/Tamarik/ports/surroundings.h"
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace tamarik {

namespace {

constexpr mode_t kFileMode = 0666, kFolderMode = 0777;

[[noreturn]] void fail(int error) {
    const auto number = [error] {
        switch (error) {
        case ENOENT: return basic::kFileNotFound;
        case EEXIST: return basic::kFileAlreadyExists;
        case ENOTDIR: return basic::kPathNotFound;
        case ENOSPC:
        case EDQUOT:
        case EFBIG: return basic::kDiskFull;
        case EMFILE:
        case ENFILE: return basic::kTooManyFiles;
        case EIO: return basic::kDeviceIOError;
        default: return basic::kPathFileAccessError;
        }
    }();
    throw basic::RuntimeError(number, {}, "VBAProject", error);
}

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    [[nodiscard]] int get() const { return number_; }
    [[nodiscard]] bool isOpen() const { return number_ >= 0; }

private:
    int number_;
};

/// Where the kernel lacks openat2: no name on the way may be a link.
int openStepwise(int folder, const std::string& path, int flags, unsigned mode) {
    Descriptor at(dup(folder));
    std::size_t from = 0;
    for (std::size_t end = path.find('/'); end != std::string::npos; end = path.find('/', from)) {
        const std::string name = path.substr(from, end - from);
        Descriptor next(openat(at.get(), name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!next.isOpen()) return -1;
        at = std::move(next);
        from = end + 1;
    }
    return openat(at.get(), path.substr(from).c_str(), flags | O_NOFOLLOW | O_CLOEXEC, mode);
}

class DiskFile final : public StoredFile {
public:
    explicit DiskFile(Descriptor file) : file_(std::move(file)) {}

    std::size_t read(std::uint64_t at, char* to, std::size_t count) override {
        std::size_t done = 0;
        while (done < count) {
            const ssize_t got = pread(file_.get(), to + done, count - done, static_cast<off_t>(at + done));
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) fail(errno);
            if (got == 0) break;
            done += static_cast<std::size_t>(got);
        }
        return done;
    }
    void write(std::uint64_t at, std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t put = pwrite(file_.get(), bytes.data(), bytes.size(), static_cast<off_t>(at));
            if (put < 0 && errno == EINTR) continue;
            if (put < 0) fail(errno);
            bytes.remove_prefix(static_cast<std::size_t>(put));
            at += static_cast<std::uint64_t>(put);
        }
    }
    [[nodiscard]] std::uint64_t size() const override {
        struct stat status {};
        if (fstat(file_.get(), &status) != 0) fail(errno);
        return static_cast<std::uint64_t>(status.st_size);
    }

private:
    Descriptor file_;
};

bool isRegular(int file) {
    struct stat status {};
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

FolderStore::FolderStore(const std::string& folder, Resolution resolution)
    : folder_(::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)), resolution_(resolution) {
    if (folder_ < 0) throw basic::RuntimeError(basic::kPathNotFound, {}, "VBAProject", errno);
}

FolderStore::~FolderStore() { close(folder_); }

int FolderStore::openBeneath(const std::string& given, int flags, unsigned mode) const {
    const std::string path = given.empty() ? "." : given;
    if (resolution_ == Resolution::Stepwise) return openStepwise(folder_, path, flags, mode);
    open_how how{};
    how.flags = static_cast<std::uint64_t>(flags | O_CLOEXEC);
    how.mode = (flags & O_CREAT) != 0 ? mode : 0;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
    const long opened = syscall(SYS_openat2, folder_, path.c_str(), &how, sizeof how);
    if (opened >= 0 || (errno != ENOSYS && errno != EPERM)) return static_cast<int>(opened);
    return openStepwise(folder_, path, flags, mode);
}

int FolderStore::openParent(const std::string& path) const {
    const int parent = openBeneath(folderOf(path), O_PATH | O_DIRECTORY);
    if (parent < 0) throw basic::RuntimeError(basic::kPathNotFound, {}, "VBAProject", errno);
    return parent;
}

std::unique_ptr<StoredFile> FolderStore::open(const std::string& path, const FileUse& use) {
    { const Descriptor parent(openParent(path)); }
    // Opening a pipe must not wait.
    int flags = O_NONBLOCK | O_NOCTTY;
    flags |= use.reads && use.writes ? O_RDWR : use.writes ? O_WRONLY : O_RDONLY;
    if (use.creates) flags |= O_CREAT;
    Descriptor file(openBeneath(path, flags, kFileMode));
    if (!file.isOpen()) fail(errno);
    if (!isRegular(file.get())) fail(EACCES);
    if (use.empties && ftruncate(file.get(), 0) != 0) fail(errno);
    return std::make_unique<DiskFile>(std::move(file));
}

std::optional<FileInfo> FolderStore::find(const std::string& path) const {
    const Descriptor file(openBeneath(path, O_PATH));
    struct stat status {};
    if (!file.isOpen() || fstat(file.get(), &status) != 0) return std::nullopt;
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) return std::nullopt;
    return FileInfo{S_ISDIR(status.st_mode), (status.st_mode & S_IWUSR) == 0,
                    static_cast<std::uint64_t>(status.st_size), localDate(status.st_mtim.tv_sec)};
}

std::vector<std::string> FolderStore::names(const std::string& folder) const {
    const int opened = openBeneath(folder, O_RDONLY | O_DIRECTORY);
    DIR* const list = opened < 0 ? nullptr : fdopendir(opened);
    if (!list) {
        if (opened >= 0) close(opened);
        return {};
    }
    std::vector<std::string> names;
    while (const dirent* const entry = readdir(list)) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") names.push_back(name);
    }
    closedir(list);
    return names;
}

void FolderStore::remove(const std::string& file) {
    const Descriptor parent(openParent(file));
    if (unlinkat(parent.get(), nameOf(file).c_str(), 0) != 0) fail(errno);
}

void FolderStore::rename(const std::string& from, const std::string& to) {
    const Descriptor source(openParent(from)), target(openParent(to));
    constexpr unsigned kNoReplace = 1;
    const std::string oldName = nameOf(from), newName = nameOf(to);
    if (syscall(SYS_renameat2, source.get(), oldName.c_str(), target.get(), newName.c_str(), kNoReplace) == 0) return;
    if (errno != EINVAL && errno != ENOSYS) fail(errno);
    if (find(to)) fail(EEXIST);
    if (renameat(source.get(), oldName.c_str(), target.get(), newName.c_str()) != 0) fail(errno);
}

void FolderStore::makeFolder(const std::string& path) {
    const Descriptor parent(openParent(path));
    if (mkdirat(parent.get(), nameOf(path).c_str(), kFolderMode) != 0) fail(EACCES);
}

void FolderStore::removeFolder(const std::string& path) {
    const auto info = find(path);
    if (!info || !info->isFolder) throw basic::RuntimeError(basic::kPathNotFound);
    const Descriptor parent(openParent(path));
    if (unlinkat(parent.get(), nameOf(path).c_str(), AT_REMOVEDIR) != 0) fail(EACCES);
}

void FolderStore::setReadOnly(const std::string& path, bool isReadOnly) {
    const Descriptor file(openBeneath(path, O_RDONLY | O_NONBLOCK | O_NOCTTY));
    struct stat status {};
    if (!file.isOpen() || fstat(file.get(), &status) != 0) fail(errno);
    const mode_t mode = isReadOnly ? status.st_mode & ~mode_t{S_IWUSR | S_IWGRP | S_IWOTH} : status.st_mode | S_IWUSR;
    if (fchmod(file.get(), mode & 07777) != 0) fail(errno);
}

} // namespace tamarik
#endif
