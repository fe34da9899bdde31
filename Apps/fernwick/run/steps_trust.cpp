#include "Apps/fernwick/run/steps_trust.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/run/terminal_reply.h"
#include <fmt/format.h>

namespace cli {

void StepsTrust::prepare(fernwick::Registry& registry, std::vector<std::string> steps) {
    folders_.emplace(registry);
    steps_ = std::move(steps);
}

bool StepsTrust::mayRun(const std::string& commandLine, const std::string& folder) {
    checkInterrupt(); // do not start another step
    if (!decided_) decided_ = decide(folder);
    if (*decided_)
        console_.detail(fmt::format("running: {}", commandLine));
    else
        console_.err(fmt::format("not run: {}", commandLine), Tone::Warning);
    return *decided_;
}

bool StepsTrust::decide(const std::string& folder) {
    if (options_.trustSteps || (folders_ && folders_->holds(folder))) return true;
    if (console_.canAsk()) return askUser(folder);
    console_.err(fmt::format("The project in {} has compile steps, and its folder is not trusted. Run them with "
                             "--trust-steps, or trust the folder with fernwick trust add.",
                             folder),
                 Tone::Warning);
    return false;
}

bool StepsTrust::askUser(const std::string& folder) {
    console_.err(fmt::format("The project in {} runs these commands before and after a compile:", folder));
    for (const auto& step : steps_) console_.err("  " + step);
    console_.err("Trust this folder and run them?");
    if (askReply(console_, {{Reply::Yes, Reply::No}, Reply::No, Reply::No}) != Reply::Yes) return false;
    if (folders_) folders_->add(folder);
    return true;
}

} // namespace cli
