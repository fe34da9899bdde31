#include "Components/QLPipe/virtual_device/virtual_file.h"
#include "Components/QLPipe/base/device_names.h"
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace qlpipe {

VirtualFile::VirtualFile(const FolderHandle& root, std::string name)
    : root_(root), name_(std::move(name)), parent_(root.openFolder(folderOf(name_))) {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    file_ = FileDescriptor{::openat(parent_.get(), lastPart(name_).c_str(), kFlags, kNewFileMode)};
    if (!file_) root_.fail(errno, name_);
}

VirtualFile::~VirtualFile() {
    if (file_) ::unlinkat(parent_.get(), lastPart(name_).c_str(), 0);
}

void VirtualFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = ::write(file_.get(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) root_.fail(errno, name_);
        bytes.remove_prefix(std::size_t(written));
    }
}

void VirtualFile::close() {
    if (::fsync(file_.get()) != 0) root_.fail(errno, name_);
    file_ = FileDescriptor{};
}

} // namespace qlpipe
