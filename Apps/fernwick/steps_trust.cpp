#include "Apps/fernwick/steps_trust.h"
#include "Apps/fernwick/interruption.h"
#include "Basic/case_folding.h"
#include <fmt/format.h>

namespace cli {

namespace {
constexpr const char* kTrustedFolders = "SOFTWARE\\Quinloft\\Fernwick\\TrustedFolders";
} // namespace

void StepsTrust::prepare(fernwick::Registry& registry, std::vector<std::string> steps) {
    registry_ = &registry;
    steps_ = std::move(steps);
}

bool StepsTrust::mayRun(const std::string& commandLine, const std::string& folder) {
    checkInterrupt(); // pressed just before: no step starts any more
    if (!decided_) decided_ = decide(folder);
    if (*decided_)
        console_.detail(fmt::format("running: {}", commandLine));
    else
        console_.err(fmt::format("not run: {}", commandLine), Tone::Warning);
    return *decided_;
}

bool StepsTrust::decide(const std::string& folder) {
    if (options_.noSteps) return false;
    if (options_.trustSteps || isTrusted(folder)) return true;
    if (console_.canAsk()) return askUser(folder);
    console_.err(fmt::format("The project in {} runs compile steps, and its folder is not trusted yet: allow them with "
                             "--trust-steps, or answer at a terminal.",
                             folder),
                 Tone::Warning);
    return false;
}

bool StepsTrust::askUser(const std::string& folder) {
    console_.err(fmt::format("The project in {} runs these command lines around a compile:", folder));
    for (const auto& step : steps_) console_.err("  " + step);
    if (!basic::equalNoCase(console_.ask("Trust this folder and run them? [yes/no, Return for No] "), "yes"))
        return false;
    remember(folder);
    return true;
}

bool StepsTrust::isTrusted(const std::string& folder) const {
    if (!registry_) return false;
    std::uint32_t key = 0, type = 0, length = 0;
    if (registry_->RegOpenKeyEx(fernwick::HKEY_CURRENT_USER, kTrustedFolders, fernwick::KEY_QUERY_VALUE, key) != 0)
        return false;
    std::string none;
    const auto status = registry_->RegQueryValueEx(key, folder, type, none, length);
    registry_->RegCloseKey(key);
    return status == fernwick::ERROR_SUCCESS || status == fernwick::ERROR_MORE_DATA;
}

void StepsTrust::remember(const std::string& folder) {
    std::uint32_t key = 0, disposition = 0;
    if (registry_->RegCreateKeyEx(fernwick::HKEY_CURRENT_USER, kTrustedFolders, fernwick::KEY_ALL_ACCESS, key,
                                  disposition) != 0)
        return;
    const std::string yes{1, 0, 0, 0};
    registry_->RegSetValueEx(key, folder, fernwick::REG_DWORD, yes);
    registry_->RegCloseKey(key);
}

} // namespace cli
