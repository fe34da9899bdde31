#include "Apps/common/installation.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Host/files/path_lookup.h"
#include <unistd.h>

namespace cli {

namespace {
constexpr const char* kProgram = "fernwick-workbench";
} // namespace

/// Replaces this process by the desktop program, which is beside this program, in a build's own folder, or on PATH.
int runWorkbench(const Options& options, Console& console) {
    if (!console.flush()) return kMachineTrouble;
    auto project = options.project.empty() ? std::string() : host::absolutePath(options.project);
    std::string name = kProgram;
    char* const arguments[] = {name.data(), project.empty() ? nullptr : project.data(), nullptr};
    const auto folder = apps::programFolder();
    for (const auto& place : {folder + "/" + kProgram, folder + "/../workbench/" + kProgram})
        ::execv(place.c_str(), arguments);
    ::execvp(kProgram, arguments);
    throw Refusal(kMachineTrouble, "the desktop program fernwick-workbench is not installed");
}

} // namespace cli
