#pragma once
// The examinations of `doctor` and their findings.
#include "Apps/fernwick/run/machine.h"
#include <string>
#include <vector>

namespace cli {

struct Finding {
    enum class State {
        Good,
        Warning, ///< usable, with restrictions
        Trouble, ///< not usable
    };
    State state = State::Good;
    std::string subject;
    std::string detail;
    /// How to fix it, in one line; "" for a good finding.
    std::string fix;
};

using Findings = std::vector<Finding>;

// Each examination adds its findings, also good ones, and changes nothing.
void examineInstallation(Machine& machine, Findings& to);
void examineStores(Machine& machine, Findings& to);
void examineCompiler(Machine& machine, Findings& to);
void examineTargets(Machine& machine, Findings& to);
void examineFonts(Machine& machine, Findings& to);
void examineDevices(Machine& machine, Findings& to);

inline Finding goodFinding(std::string subject, std::string detail) {
    return {Finding::State::Good, std::move(subject), std::move(detail), {}};
}
inline Finding warningFinding(std::string subject, std::string detail, std::string fix) {
    return {Finding::State::Warning, std::move(subject), std::move(detail), std::move(fix)};
}
inline Finding troubleFinding(std::string subject, std::string detail, std::string fix) {
    return {Finding::State::Trouble, std::move(subject), std::move(detail), std::move(fix)};
}

} // namespace cli
