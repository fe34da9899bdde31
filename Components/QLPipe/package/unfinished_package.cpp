#include "Components/QLPipe/package/unfinished_package.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/file_descriptor.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace qlpipe {

void packageNotWritten(const std::string& package, const std::string& reason) {
    throw transferError(kPackageNotWritten, {{"package", package}, {"reason", reason}});
}

UnfinishedPackage::UnfinishedPackage(const std::string& target)
    : target_(target), folder_(folderOf(target).empty() ? "." : folderOf(target)) {
    const auto begin = "." + lastPart(target) + ".";
    removeLeftovers(begin);
    path_ = folder_ + "/" + begin + std::to_string(::getpid()) + ".part";
}

UnfinishedPackage::~UnfinishedPackage() { ::unlink(path_.c_str()); }

void UnfinishedPackage::finish() {
    const FileDescriptor file{::open(path_.c_str(), O_RDONLY | O_CLOEXEC)};
    if (!file || ::fsync(file.get()) != 0) packageNotWritten(target_, std::strerror(errno));
    if (::rename(path_.c_str(), target_.c_str()) != 0) packageNotWritten(target_, std::strerror(errno));
}

/// Removes files of killed processes, including those of libzip.
void UnfinishedPackage::removeLeftovers(const std::string& begin) const {
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(folder_, failed)) {
        const auto name = entry.path().filename().string();
        if (!name.starts_with(begin) || name.find(".part", begin.size()) == std::string::npos) continue;
        pid_t process = 0;
        std::from_chars(name.data() + begin.size(), name.data() + name.size(), process);
        if (process > 0 && ::kill(process, 0) != 0 && errno == ESRCH) std::filesystem::remove(entry, failed);
    }
}

} // namespace qlpipe
