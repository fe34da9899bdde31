#pragma once
// The stacks of a machine: values, and a record for each procedure that runs.
#include "Components/Tamarik/natives/session.h"
#include "Components/Tamarik/vm/program.h"
#include "Components/Tamarik/vm/task.h"
#include <memory>
#include <optional>
#include <vector>

namespace tamarik {

inline constexpr std::size_t kMostGoSubs = 65536; ///< of all frames together

enum class ErrorMode : std::uint8_t { None, GoTo, ResumeNext };

/// Who entered a frame, which decides where its errors and result go.
enum class FrameKind : std::uint8_t { Call, Entry, Start, Terminate, Event, Task, TaskCall };

/// What few frames need.
struct RareFrame {
    FrameKind kind = FrameKind::Call;
    bool inHandler = false;
    const std::uint32_t* failedAt = nullptr;
    std::vector<const std::uint32_t*> returns; ///< of GoSub
    std::unique_ptr<Task> task;
    Object* terminating = nullptr;
    Counted* pending = nullptr;        ///< what waits until Terminate has run
    ErrorState err;                    ///< Err before Terminate
    std::optional<ErrorState> raising; ///< of a call that failed, while its arguments are stored back
    std::unique_ptr<RareFrame> next;   ///< of those that no frame uses
};

struct Frame {
    const std::uint32_t* ip; ///< of all but the top frame: after the call
    Slot *base, *end;
    const LoadedProcedure* procedure;
    const std::uint32_t* handler; ///< of mode GoTo
    std::uint8_t result;          ///< the slot of the caller, or kNoSlot
    ErrorMode mode;
    std::uint32_t line; ///< for Erl
    RareFrame* rare;    ///< always null above the top frame
};

} // namespace tamarik
