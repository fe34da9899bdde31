#include "Apps/common/installation.h"
#include <filesystem>

namespace apps {

namespace fs = std::filesystem;

namespace {

bool isInstallation(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_directory(folder / "registry", ignored) && fs::is_directory(folder / "targets", ignored);
}

} // namespace

std::string programFolder() {
    std::error_code failed;
    const fs::path program = fs::read_symlink("/proc/self/exe", failed);
    return failed ? std::string() : program.parent_path().string();
}

std::string installationBeside(const std::string& programFolder) {
    if (programFolder.empty()) return {};
    const fs::path folder = programFolder;
    const fs::path shared = folder.parent_path() / "share" / "fernwick";
    if (isInstallation(shared)) return fs::canonical(shared).string();
    for (fs::path above = folder;; above = above.parent_path()) {
        if (isInstallation(above / "installation")) return fs::canonical(above / "installation").string();
        if (above == above.parent_path()) return {};
    }
}

} // namespace apps
