#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Basic/case_folding.h"
#include <filesystem>
#include <vector>

namespace cli {

namespace fs = std::filesystem;

std::string projectArgument(const std::string& given) {
    if (!given.empty()) return given;
    std::vector<std::string> found;
    std::error_code unreadable;
    for (const auto& entry : fs::directory_iterator(fs::current_path(), unreadable))
        if (basic::equalNoCase(entry.path().extension().string(), ".vbp"))
            found.push_back(entry.path().filename().string());
    if (found.size() == 1) return found.front();
    throw Refusal(kWrongUse, found.empty() ? "this folder holds no .vbp project; name one"
                                           : "this folder holds several .vbp projects; name the one that is meant");
}

} // namespace cli
