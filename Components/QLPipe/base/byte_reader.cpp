#include "Components/QLPipe/base/byte_reader.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qlpipe {
namespace {

[[noreturn]] void failReading(const std::string& path, int error) {
    if (error == ENOENT || error == ENOTDIR) throw transferError(kFileMissing, {{"file", path}});
    throw transferError(kFileUnreadable, {{"file", path}, {"reason", std::strerror(error)}});
}

/// Reading from a FIFO or a device could block forever.
void needPlainFile(const std::string& path, const struct stat& state) {
    if (S_ISDIR(state.st_mode)) failReading(path, EISDIR);
    if (!S_ISREG(state.st_mode)) failReading(path, ENXIO);
}

} // namespace

std::int64_t sizeOfLocalFile(const std::string& path) {
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0) failReading(path, errno);
    needPlainFile(path, state);
    return state.st_size;
}

LocalFile::LocalFile(std::string path, std::int64_t size)
    : path_(std::move(path)), left_(size), descriptor_(::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {
    if (descriptor_ < 0) failReading(path_, errno);
    try {
        struct stat state {};
        if (::fstat(descriptor_, &state) != 0) failReading(path_, errno);
        needPlainFile(path_, state);
        if (state.st_size != size) throw transferError(kFileChanged, {{"file", path_}});
    } catch (...) {
        ::close(descriptor_);
        throw;
    }
}

LocalFile::~LocalFile() { ::close(descriptor_); }

std::size_t LocalFile::read(std::span<char> buffer) {
    ssize_t count = 0;
    do count = ::read(descriptor_, buffer.data(), buffer.size());
    while (count < 0 && errno == EINTR);
    if (count < 0) failReading(path_, errno);
    left_ -= count;
    const bool tooMany = left_ < 0, tooFew = count == 0 && left_ > 0;
    if (tooMany || tooFew) throw transferError(kFileChanged, {{"file", path_}});
    return std::size_t(count);
}

} // namespace qlpipe
