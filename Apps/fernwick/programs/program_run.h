#pragma once
// Runs a program in slices, between which it can be stopped.
#include "Components/Tamarik/machine/machine.h"
#include <cstdint>
#include <functional>
#include <optional>

namespace cli {

struct RunLimits {
    std::optional<std::int64_t> budget; ///< instructions
    std::int64_t slice = 1'000'000;
};

/// Runs until the program ends or has used its budget, or `continues`, which is called after each slice, returns false.
/// Throws Interrupted.
tamarik::RunState runProgram(tamarik::Machine& machine, const RunLimits& limits,
                             const std::function<bool()>& continues);

/// A machine for this program. Refusal 1 if the runtime lacks something that it needs.
std::unique_ptr<tamarik::Machine> machineFor(std::shared_ptr<const tamarik::Program> program,
                                             tamarik::MachineOptions options);

} // namespace cli
