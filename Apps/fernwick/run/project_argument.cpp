#include "Apps/fernwick/run/project_argument.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include <filesystem>
#include <fmt/format.h>
#include <vector>

namespace cli {

namespace fs = std::filesystem;

std::string projectArgument(const std::string& given) {
    std::error_code ignored;
    if (!given.empty() && !fs::is_directory(given, ignored)) return given;
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(given.empty() ? "." : given, ignored))
        if (apps::hasExtension(entry.path().string(), ".vbp") && !entry.is_directory(ignored))
            found.push_back((fs::path(given) / entry.path().filename()).string());
    if (found.size() == 1) return found.front();
    throw Refusal(kWrongUse, fmt::format("there {} in {}; name the project",
                                         found.empty() ? "is no .vbp file" : "are several .vbp files",
                                         given.empty() ? "this folder" : given));
}

bool namesProject(const std::string& operand) {
    std::error_code ignored;
    return apps::hasExtension(operand, ".vbp") || apps::hasExtension(operand, ".vbg") ||
           fs::is_directory(operand, ignored);
}

} // namespace cli
