#include "Apps/fernwick/programs/program_run.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/run/interruption.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include "Components/Tamarik/ports/surroundings.h"
#include <algorithm>
#include <limits>

namespace cli {

namespace {

/// Ends early when Ctrl+C is pressed, so that the run can end.
void sleepUnlessInterrupted(std::int64_t milliseconds) {
    constexpr std::int64_t kPiece = 50;
    for (; milliseconds > 0 && !wasInterrupted(); milliseconds -= kPiece)
        tamarik::sleepFor(std::min(milliseconds, kPiece));
}

} // namespace

tamarik::RunState runProgram(tamarik::Machine& machine, const RunLimits& limits,
                             const std::function<bool()>& continues) {
    auto left = limits.budget.value_or(std::numeric_limits<std::int64_t>::max());
    for (;;) {
        const auto slice = std::min(left, limits.slice);
        const auto state = tamarik::runWithoutWindow(machine, slice, sleepUnlessInterrupted);
        checkInterrupt();
        left -= slice;
        if (state != tamarik::RunState::StoppedByBudget || !continues() || left <= 0) return state;
    }
}

std::unique_ptr<tamarik::Machine> machineFor(std::shared_ptr<const tamarik::Program> program,
                                             tamarik::MachineOptions options) {
    try {
        return std::make_unique<tamarik::Machine>(std::move(program), tamarik::standardNatives(), std::move(options));
    } catch (const tamarik::Refusal& refusal) { throw Refusal(kProjectErrors, refusal.what()); }
}

} // namespace cli
