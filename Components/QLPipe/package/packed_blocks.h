#pragma once
// The compressed content of a package.
#include "Components/QLPipe/package/bundle.h"
#include "Components/QLPipe/package/ordered_work.h"

namespace qlpipe {

/// A compressed part of a file.
struct PackedBlock {
    std::string bytes;
    std::int64_t unpackedSize = 0;
    /// Whether the file ends here.
    bool isLast = false;
    /// CRC-32 of the file up to the end of this block.
    std::uint32_t crc = 0;
};

using PackedBlocks = OrderedWork<PackedBlock>;

/// Returns the source of the blocks of all files in their order. Reading is serial; the tasks compress. The blocks do not
/// depend on the number of threads. Fails if a file no longer matches its checksum. `files` must outlive the result.
PackedBlocks::Source blocksOf(std::vector<const BundleFile*> files);

/// Sets the checksum of each file, reading several files at a time. `started` is called for each file in their order;
/// `moved` for bytes that were read.
void addChecksums(std::vector<BundleFile>& files, unsigned threads,
                  const std::function<void(const BundleFile&)>& started,
                  const std::function<void(std::int64_t)>& moved);

} // namespace qlpipe
