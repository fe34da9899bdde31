#include "Components/Tamarik/vm/wait_task.h"
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

bool WaitTask::step(Execution& machine) {
    if (!answer_) {
        machine.waiting = this;
        machine.finish(RunState::Waiting);
        return false;
    }
    Slot value{};
    if (request_.finish) request_.finish(machine.session, *answer_, value);
    const Frame& top = *machine.frame;
    Slot* const base = (machine.frame - 1)->base;
    machine.storeResult(top.result == image::kNoSlot ? nullptr : base + top.result, result_, &value);
    return true;
}

} // namespace tamarik
