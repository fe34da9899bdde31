#pragma once
// What `doctor` looks at, and what it finds.
#include "Apps/fernwick/run/machine.h"
#include <string>
#include <vector>

namespace cli {

/// One thing that runs stand on.
struct Finding {
    enum class State {
        Good,
        Warning, ///< usable, with something to know
        Trouble, ///< not usable
    };
    State state = State::Good;
    std::string subject;
    /// What was found.
    std::string detail;
    /// What sets it right, in one line; "" for a good one.
    std::string cure;
};

using Findings = std::vector<Finding>;

// The examinations. Each adds what it finds, good things too. They write nothing, but a device's folder that is not there
// is made when it is looked for.
void examineInstallation(Machine& machine, Findings& to);
void examineStores(Machine& machine, Findings& to);
void examineCompiler(Machine& machine, Findings& to);
void examineTargets(Machine& machine, Findings& to);
void examineFonts(Machine& machine, Findings& to);
void examineDevices(Machine& machine, Findings& to);

inline Finding goodFinding(std::string subject, std::string detail) {
    return {Finding::State::Good, std::move(subject), std::move(detail), {}};
}
inline Finding warningFinding(std::string subject, std::string detail, std::string cure) {
    return {Finding::State::Warning, std::move(subject), std::move(detail), std::move(cure)};
}
inline Finding troubleFinding(std::string subject, std::string detail, std::string cure) {
    return {Finding::State::Trouble, std::move(subject), std::move(detail), std::move(cure)};
}

} // namespace cli
