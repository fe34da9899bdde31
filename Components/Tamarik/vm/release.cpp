// What runs between two instructions: the release of objects with their Terminate procedures, and the steps of tasks.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/object.h"
#include "Components/Tamarik/vm/execution.h"
#include <utility>

namespace tamarik {

void Execution::destroyObject(Object* object) {
    connections.forget(*object);
    destroy(heap, object);
}

void Execution::destroyNext() {
    Counted* const block = heap.takePending();
    if (block->kind == Counted::Kind::Array) return destroy(heap, static_cast<ArrayBlock*>(block));
    auto* const object = static_cast<Object*>(block);
    const std::uint32_t terminate =
        object->classNumber == 0 ? image::kNone : program->code().classes[object->classNumber - 1].terminate;
    if (object->state != Counted::State::Living || terminate == image::kNone) return destroyObject(object);
    Slot* base = nullptr;
    ErrorState err;
    try {
        err = session.err;
        base = pushFrame(program->procedures[terminate], FrameKind::Terminate);
    } catch (...) {
        object->state = Counted::State::Terminated;
        destroyObject(object);
        throw;
    }
    object->state = Counted::State::Terminating;
    // One reference belongs to the procedure that runs, one to its parameter; another one that it stores keeps the object
    // alive.
    object->count = 2;
    base[0].object = object;
    RareFrame& top = *frame->rare;
    top.terminating = object;
    top.pending = heap.detachPending();
    top.err = std::move(err);
}

void Execution::finishTerminate(RareFrame& rare) {
    Object* const object = std::exchange(rare.terminating, nullptr);
    session.err = std::move(rare.err);
    heap.restorePending(std::exchange(rare.pending, nullptr));
    object->state = Counted::State::Terminated;
    if (--object->count == 0) destroyObject(object);
}

bool Execution::finishNormally() {
    if (std::exchange(areGlobalsReleased_, true)) {
        finish(RunState::Finished);
        return true;
    }
    clearManaged(heap, globals.data(), program->globals.managed);
    return false;
}

bool Execution::settleOnce() {
    if (heap.hasPending()) {
        destroyNext();
        return false;
    }
    const RareFrame* const top = frame->rare;
    if (!top) return true;
    if (top->kind == FrameKind::Task) {
        Frame* const task = frame;
        if (task->rare->task->step(*this)) {
            // The task left its result in the caller's slots.
            leaveTop();
        }
        return state != RunState::Running;
    }
    if (top->kind != FrameKind::Entry) return true;
    if (toRun.empty()) return finishNormally();
    const std::uint32_t next = toRun.back();
    toRun.pop_back();
    pushFrame(program->procedures[next], FrameKind::Start);
    return false;
}

bool Execution::settle() {
    for (;;) {
        try {
            if (settleOnce()) return state == RunState::Running;
        } catch (const basic::RuntimeError& error) {
            fail(error);
            if (!dispatchError()) return false;
        } catch (const std::bad_alloc&) {
            fail(basic::kOutOfMemory);
            if (!dispatchError()) return false;
        }
    }
}

} // namespace tamarik
