#pragma once
// An entry of a package that is being written.
#include "Components/QLPipe/base/progress.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/package/bundle.h"
#include <exception>
#include <memory>
#include <zip.h>

namespace qlpipe {

/// Provides an entry's bytes to libzip. Exceptions must not pass through libzip, so the first one is stored.
class EntrySource {
public:
    EntrySource(const BundleFile& file, Progress& progress, std::exception_ptr& failure)
        : file_(file), progress_(progress), failure_(failure) {}

    /// The callback of libzip, with the EntrySource as `self`.
    static zip_int64_t serve(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command);

private:
    zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) noexcept;
    template <class Step>
    zip_int64_t kept(Step&& step) noexcept;
    zip_int64_t begin();
    zip_int64_t read(char* data, zip_uint64_t length);
    zip_int64_t state(zip_stat_t* stat) const noexcept;

    const BundleFile& file_;
    Progress& progress_;
    std::exception_ptr& failure_;
    std::unique_ptr<ByteReader> reader_;
    Sha256 checksum_;
    bool ended_ = false;
};

} // namespace qlpipe
