#pragma once
// libzip, loaded for the first package.
#include "Components/QLPipe/base/late_library.h"
#include <memory>
#include <zip.h>

namespace qlpipe {

/// Members are named like the functions, without "zip_".
struct ZipLibrary {
    LateLibrary library{"libzip.so.4", "libzip4"};
    decltype(&::zip_open) open = library["zip_open"];
    decltype(&::zip_close) close = library["zip_close"];
    decltype(&::zip_discard) discard = library["zip_discard"];
    decltype(&::zip_get_error) get_error = library["zip_get_error"];
    decltype(&::zip_error_strerror) error_strerror = library["zip_error_strerror"];
    decltype(&::zip_error_init_with_code) error_init_with_code = library["zip_error_init_with_code"];
    decltype(&::zip_error_fini) error_fini = library["zip_error_fini"];
    // writing
    decltype(&::zip_source_function) source_function = library["zip_source_function"];
    decltype(&::zip_source_free) source_free = library["zip_source_free"];
    decltype(&::zip_file_add) file_add = library["zip_file_add"];
    decltype(&::zip_file_set_dostime) file_set_dostime = library["zip_file_set_dostime"];
    decltype(&::zip_file_set_external_attributes) file_set_external_attributes =
        library["zip_file_set_external_attributes"];
    // reading
    decltype(&::zip_get_num_entries) get_num_entries = library["zip_get_num_entries"];
    decltype(&::zip_stat_index) stat_index = library["zip_stat_index"];
    decltype(&::zip_fopen_index) fopen_index = library["zip_fopen_index"];
    decltype(&::zip_fread) fread = library["zip_fread"];
    decltype(&::zip_fclose) fclose = library["zip_fclose"];
};

/// Throws TransferError if libzip is not installed.
const ZipLibrary& zipLibrary();

/// Discards an archive that was not closed.
struct ZipDiscard {
    void operator()(zip_t* archive) const { zipLibrary().discard(archive); }
};
using ZipArchive = std::unique_ptr<zip_t, ZipDiscard>;

/// Opens an archive. Returns null and sets `reason` on failure.
ZipArchive openZip(const std::string& path, int flags, std::string& reason);

/// Returns the text of the last error of an archive.
std::string zipReason(zip_t* archive);

} // namespace qlpipe
