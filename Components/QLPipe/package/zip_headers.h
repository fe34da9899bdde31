#pragma once
// The two descriptions of each entry in a zip archive.
#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace qlpipe {

/// An entry as the central directory describes it.
struct ZipEntry {
    std::string name;
    std::int64_t size = 0, packedSize = 0;
};

/// Whether the archive begins with these entries, without gaps, followed by its central directory, and both describe them
/// alike. libzip reads the directory and ignores what an entry's own header says.
bool headersAgree(std::istream& archive, const std::vector<ZipEntry>& entries);

} // namespace qlpipe
