#pragma once
// Runs the programs that a project starts before and after its compile.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

class modProcessControl {
public:
    modProcessControl(ErrorReport& errors, const Platform& platform)
        : errors_(errors), processes_(platform.processes), app_(platform.app) {}

    /// Starts the program minimised and waits until it ends, without a timeout. An empty `workingFolder` is set to the
    /// add-in's folder. Returns the exit code, or -1 when the program could not be started or waited for.
    std::int32_t RunProcess(const std::string& commandLine, std::string& workingFolder);

private:
    ErrorReport& errors_;
    Processes& processes_;
    const App& app_;
};

} // namespace fernwick
