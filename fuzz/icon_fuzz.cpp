// Directories of icon files: for any bytes, every counted image can be read.
#include "Add-in/settings/iconReader.h"
#include "Host/system/file_system.h"
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file in memory with a path.
const int kMemoryFile = memfd_create("icon", MFD_CLOEXEC);

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const host::FileSystem files;
    static const std::string path = "/proc/self/fd/" + std::to_string(kMemoryFile);
    if (ftruncate(kMemoryFile, 0) != 0 || pwrite(kMemoryFile, data, size, 0) != ssize_t(size)) std::abort();

    fernwick::iconReader reader{files};
    const auto loaded = reader.LoadIconFile(path);
    const int count = reader.ImageCount();
    if (loaded != fernwick::iconReader::Done && count != 0) std::abort();
    fernwick::IconImageDetails image;
    for (int index = 1; index <= count; ++index)
        if (reader.GetImageDetails(std::int16_t(index), image) != fernwick::iconReader::Done) std::abort();
    if (loaded == fernwick::iconReader::Done && count < INT16_MAX &&
        reader.GetImageInfo(std::int16_t(count + 1), image) != fernwick::iconReader::BeyondTheLast)
        std::abort();
    return 0;
}
