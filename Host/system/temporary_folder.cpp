#include "Host/system/temporary_folder.h"
#include "Host/system/file_error.h"
#include <cstdlib>
#include <filesystem>

namespace host {

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

const std::string& TemporaryFolder::path() {
    if (!path_.empty()) return path_;
    std::error_code error;
    auto parent = std::filesystem::temp_directory_path(error);
    if (error) parent = "/tmp";
    auto path = (parent / "fernwick-XXXXXX").string();
    if (!::mkdtemp(path.data())) throw scriptError(errno, "no temporary folder can be created", parent.string());
    return path_ = path;
}

} // namespace host
