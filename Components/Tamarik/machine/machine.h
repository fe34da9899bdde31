#pragma once
// Runs a compiled application.
#include "Components/Image/code/code_image.h"
#include "Components/Tamarik/natives/natives.h"
#include "Components/Tamarik/vm/program.h"
#include "Components/Tamarik/vm/run_error.h"
#include "Components/Tamarik/vm/run_state.h"
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace tamarik {

struct Execution;

/// The runtime lacks something that the application needs; what() names it.
class Refusal : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The usual size of the stack: 8 MB.
inline constexpr std::size_t kStackSlots = std::size_t{1} << 20;

struct MachineOptions {
    std::uint64_t heapLimit = kMostHeapBytes;
    std::size_t stackSlots = kStackSlots; ///< of all procedures that run; error 28 if there are no more
    std::uint32_t seed = 0x50000;         ///< of Rnd
    Output output;
    Surroundings surroundings;
    bool usesSwitch = false;             ///< the portable form of the interpreter
    std::uint64_t failingAllocation = 0; ///< the allocation that fails, counted from 1; for tests
};

/// An application with its own variables. Not for several threads, and run is never nested.
class Machine {
public:
    /// The application must be verified. Raises Refusal.
    Machine(std::shared_ptr<const Program> program, const Natives& natives, MachineOptions options);
    ~Machine();

    /// Prepares the modules, then starts the application.
    void start();
    /// Prepares the modules, then calls a procedure without parameters.
    void start(std::uint32_t procedure);
    /// Continues until the application ends, waits, or has used the budget, which is about the number of instructions. One that
    /// waits must be answered first.
    RunState run(std::int64_t budget = std::numeric_limits<std::int64_t>::max());
    /// What is left of the budget of the last run.
    [[nodiscard]] std::int64_t budgetLeft() const;

    /// What the application waits for, while its state is Waiting.
    [[nodiscard]] const Wait& wait() const;
    void answer(Answer answer);

    /// Why the last run failed.
    [[nodiscard]] const std::optional<RunError>& error() const;
    /// Where a stopped run is, then the callers.
    [[nodiscard]] std::vector<RunError::Place> callers() const;
    /// The class names of the objects that live, the oldest first.
    [[nodiscard]] std::vector<std::string> livingObjects() const;
    [[nodiscard]] Session& session();
    /// The variables of the modules.
    [[nodiscard]] std::span<const Slot> globals() const;

private:
    void bind(const Natives& natives);

    MachineOptions options_;
    std::unique_ptr<Session> session_;
    std::unique_ptr<Execution> execution_;
};

} // namespace tamarik
