#include "Components/QLPipe/package/zip_library.h"

namespace qlpipe {

const ZipLibrary& zipLibrary() {
    static const ZipLibrary loaded;
    return loaded;
}

ZipArchive openZip(const std::string& path, int flags, std::string& reason) {
    const auto& zip = zipLibrary();
    int code = 0;
    ZipArchive archive{zip.open(path.c_str(), flags, &code)};
    if (archive) return archive;
    zip_error_t error;
    zip.error_init_with_code(&error, code);
    reason = zip.error_strerror(&error);
    zip.error_fini(&error);
    return archive;
}

std::string zipReason(zip_t* archive) {
    const auto& zip = zipLibrary();
    return zip.error_strerror(zip.get_error(archive));
}

} // namespace qlpipe
