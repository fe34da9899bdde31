#pragma once
// Runs the compile steps of a project and reports those that fail.
#include "Apps/fernwick/run/steps_trust.h"
#include "Host/system/processes.h"

namespace cli {

/// A failed step is reported with its number. With --no-steps a step is not run, and counts as successful.
class StepProcesses : public host::Processes {
public:
    StepProcesses(const Options& options, StepsTrust& trust, Console& console);

    bool CreateProcess(const std::string& commandLine, const std::string& workingFolder, int showWindow,
                       std::uint32_t& process) override;
    std::uint32_t WaitForSingleObject(std::uint32_t process) override;
    bool GetExitCodeProcess(std::uint32_t process, std::int32_t& code) override;

private:
    void report(const std::string& what);

    const Options& options_;
    Console& console_;
    bool refused_ = false;
    /// Of the current step, from 1.
    int number_ = 0;
};

} // namespace cli
