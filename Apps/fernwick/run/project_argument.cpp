#include "Apps/fernwick/run/project_argument.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include <filesystem>
#include <vector>

namespace cli {

namespace fs = std::filesystem;

std::string projectArgument(const std::string& given) {
    if (!given.empty()) return given;
    std::vector<std::string> found;
    std::error_code unreadable;
    for (const auto& entry : fs::directory_iterator(fs::current_path(), unreadable))
        if (apps::hasExtension(entry.path().string(), ".vbp")) found.push_back(entry.path().filename().string());
    if (found.size() == 1) return found.front();
    throw Refusal(kWrongUse, found.empty() ? "there is no .vbp file in this folder; name the project"
                                           : "there are several .vbp files in this folder; name the project");
}

} // namespace cli
