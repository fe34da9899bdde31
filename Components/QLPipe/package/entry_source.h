#pragma once
// An entry of a package that is being written.
#include "Components/QLPipe/base/progress.h"
#include "Components/QLPipe/package/packed_blocks.h"
#include <zip.h>

namespace qlpipe {

/// Provides an entry's compressed blocks to libzip, which asks for the entries in their order. Exceptions must not pass
/// through libzip, so the first one is stored.
class EntrySource {
public:
    EntrySource(const BundleFile& file, PackedBlocks& blocks, Progress& progress, std::exception_ptr& failure)
        : file_(file), blocks_(blocks), progress_(progress), failure_(failure) {}

    /// The callback of libzip, with the EntrySource as `self`.
    static zip_int64_t serve(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command);

private:
    zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) noexcept;
    template <class Step>
    zip_int64_t kept(Step&& step) noexcept;
    zip_int64_t begin();
    zip_int64_t read(char* data, zip_uint64_t length);
    void takeBlock();
    zip_int64_t state(zip_stat_t* stat) const noexcept;

    const BundleFile& file_;
    PackedBlocks& blocks_;
    Progress& progress_;
    std::exception_ptr& failure_;
    PackedBlock block_;
    std::size_t given_ = 0;
};

} // namespace qlpipe
