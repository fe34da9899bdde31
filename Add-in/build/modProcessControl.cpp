#include "Add-in/build/modProcessControl.h"

namespace fernwick {

namespace {
constexpr std::int32_t kNotRun = -1;
}

std::int32_t modProcessControl::RunProcess(const std::string& commandLine, std::string& workingFolder) {
    Procedure here{errors_, "modProcessControl.RunProcess"};
    if (workingFolder.empty()) workingFolder = app_.Path;

    std::uint32_t process = 0;
    const bool started =
        here.value([&] { return processes_.CreateProcess(commandLine, workingFolder, SW_SHOWMINIMIZED, process); });
    if (!started) return kNotRun;

    std::int32_t code = kNotRun;
    here([&] {
        if (processes_.WaitForSingleObject(process) != 0) return;
        std::int32_t exitCode = 0;
        if (processes_.GetExitCodeProcess(process, exitCode)) code = exitCode;
    });
    here([&] { processes_.CloseHandle(process); });
    return code;
}

} // namespace fernwick
