// Untrusted packages: an accepted package has only safe names and matches its manifest; a refused one has a reason.
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/package/package.h"
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr std::int64_t kMostBytes = 1024 * 1024;

void require(bool holds) {
    if (!holds) std::abort();
}

/// A file in memory with a path.
class MemoryFile {
public:
    MemoryFile(const std::uint8_t* data, std::size_t size) : descriptor_(::memfd_create("package", MFD_CLOEXEC)) {
        require(descriptor_ >= 0 && ::write(descriptor_, data, size) == ssize_t(size));
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { ::close(descriptor_); }
    std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file{data, size};
    try {
        const qlpipe::Package package{file.path()};
        const auto& bundle = package.bundle();
        require(qlpipe::isSafePart(bundle.project) && qlpipe::isSafePart(bundle.device));
        for (const auto& each : bundle.files) require(qlpipe::isSafeName(each.place) && each.size >= 0);
        if (bundle.bytes() <= kMostBytes) package.verify();
    } catch (const qlpipe::TransferError& refused) { require(refused.number != 0 && !refused.text.empty()); }
    return 0;
}
