#include "Components/QLPipe/linux_handheld/known_hosts_file.h"
#include "Components/QLPipe/base/file_descriptor.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace qlpipe {

namespace {

[[noreturn]] void fail(const std::string& path) {
    throw sshError(SshMessage::KnownHostsNotWritten,
                   {{"file", path}, {"reason", std::generic_category().message(errno)}});
}

void makeFolderOf(const std::string& path) {
    const auto folder = std::filesystem::path(path).parent_path();
    std::error_code ignored; // opening the file reports it
    if (folder.empty() || std::filesystem::exists(folder, ignored)) return;
    if (std::filesystem::create_directories(folder, ignored))
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
}

bool endsWithinALine(int file, off_t size) {
    char last = '\n';
    return size > 0 && ::pread(file, &last, 1, size - 1) == 1 && last != '\n';
}

} // namespace

/// One write, so that programs that append at the same time do not mix their lines.
void appendKnownHost(const std::string& path, const std::string& line) {
    makeFolderOf(path);
    const FileDescriptor file{::open(path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, 0600)};
    struct stat before {};
    if (file.get() < 0 || ::fstat(file.get(), &before) != 0) fail(path);
    const auto text = (endsWithinALine(file.get(), before.st_size) ? "\n" : "") + line + "\n";
    const auto written = ::write(file.get(), text.data(), text.size());
    if (written == ssize_t(text.size())) return;
    if (written >= 0) {
        if (::ftruncate(file.get(), before.st_size) != 0) fail(path);
        errno = ENOSPC;
    }
    fail(path);
}

} // namespace qlpipe
