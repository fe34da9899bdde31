#include "Apps/fernwick/run/step_processes.h"
#include "Apps/fernwick/run/interruption.h"
#include "Host/system/command_line.h"
#include <fmt/format.h>

namespace cli {

namespace {

constexpr std::uint32_t kSkipped = 0xFFFFFFFF;

std::string programOf(const std::string& commandLine) {
    const auto readings = host::programReadings(commandLine);
    return readings.empty() ? commandLine : readings.front().name;
}

} // namespace

StepProcesses::StepProcesses(const Options& options, StepsTrust& trust, Console& console)
    : host::Processes(
          [this, &trust](const std::string& commandLine, const std::string& folder) {
              refused_ = !trust.mayRun(commandLine, folder);
              return !refused_;
          },
          wasInterrupted),
      options_(options),
      console_(console) {}

bool StepProcesses::CreateProcess(const std::string& commandLine, const std::string& workingFolder, int showWindow,
                                  std::uint32_t& process) {
    ++number_;
    if (options_.noSteps) {
        report(fmt::format("skipped: {}", commandLine));
        process = kSkipped;
        return true;
    }
    refused_ = false;
    if (Processes::CreateProcess(commandLine, workingFolder, showWindow, process)) return true;
    if (!refused_) report(fmt::format("{}: not found", programOf(commandLine)));
    return false;
}

std::uint32_t StepProcesses::WaitForSingleObject(std::uint32_t process) {
    return process == kSkipped ? 0 : Processes::WaitForSingleObject(process);
}

bool StepProcesses::GetExitCodeProcess(std::uint32_t process, std::int32_t& code) {
    code = 0;
    if (process == kSkipped) return true;
    const bool known = Processes::GetExitCodeProcess(process, code);
    if (known && code != 0 && !wasInterrupted()) report(fmt::format("exit status {}", code));
    return known;
}

void StepProcesses::report(const std::string& what) {
    console_.err(fmt::format("step {}: {}", number_, what), Tone::Warning);
}

} // namespace cli
