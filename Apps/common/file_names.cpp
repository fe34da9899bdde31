#include "Apps/common/file_names.h"
#include "Basic/case_folding.h"
#include <filesystem>

namespace apps {

namespace fs = std::filesystem;

bool hasExtension(const std::string& path, std::string_view extension) {
    return basic::equalNoCase(fs::path(path).extension().string(), extension);
}

std::string folderOf(const std::string& path) { return fs::absolute(path).lexically_normal().parent_path().string(); }

} // namespace apps
