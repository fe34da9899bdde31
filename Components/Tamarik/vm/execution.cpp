#include "Components/Tamarik/vm/execution.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/object.h"
#include <new>
#include <utility>

namespace tamarik {

namespace {

/// Of tasks, and of what is below the first frame, so that every frame has a caller.
const LoadedProcedure kNoProcedure{};

/// Pages that are never touched cost nothing.
template <class T>
T* reserve(std::size_t count) {
    void* const memory = std::calloc(count, sizeof(T));
    if (!memory) throw basic::RuntimeError(basic::kOutOfMemory);
    return static_cast<T*>(memory);
}

} // namespace

Execution::Execution(std::shared_ptr<const Program> code, Session& owner, std::size_t stackSlots)
    : program(std::move(code)),
      session(owner),
      heap(owner.heap),
      texts(program->code().texts.size()),
      globals(program->globals.slots),
      values_(reserve<Slot>(stackSlots)),
      frames_(reserve<Frame>(stackSlots / kSlotsOfFrame)) { // the slots are used up first
    stack = values_.get();
    stackEnd = stack + stackSlots;
    frame = frames_.get();
    frame->base = stack;
    frame->procedure = &kNoProcedure;
    frame->end = stack + kNoProcedure.slots;
    rare(*frame).kind = FrameKind::Entry;
}

Execution::~Execution() {
    while (frame != frames_.get()) leaveTop();
    clearManaged(heap, globals.data(), program->globals.managed);
    for (auto* object = static_cast<Object*>(heap.living); object; object = object->older) object->releaseMembers(heap);
    while (heap.hasPending()) {
        Counted* const block = heap.takePending();
        if (block->kind == Counted::Kind::Array)
            destroy(heap, static_cast<ArrayBlock*>(block));
        else
            destroy(heap, static_cast<Object*>(block));
    }
    // Objects that a failed allocation left without an owner.
    while (heap.living) destroy(heap, static_cast<Object*>(heap.living));
    for (TextBlock* text : texts) release(heap, text);
    dropRare(*frame);
}

RareFrame* Execution::newRare() {
    if (!freeRares_) return new RareFrame;
    RareFrame* const rare = freeRares_.release();
    freeRares_ = std::move(rare->next);
    return rare;
}

RareFrame& Execution::rare(Frame& of) {
    if (!of.rare) of.rare = newRare();
    return *of.rare;
}

void Execution::dropRare(Frame& of) noexcept {
    std::unique_ptr<RareFrame> rare(std::exchange(of.rare, nullptr));
    if (!rare) return;
    goSubs -= rare->returns.size();
    *rare = {};
    rare->next = std::move(freeRares_);
    freeRares_ = std::move(rare);
}

TextBlock* Execution::constantText(std::uint32_t number) {
    TextBlock*& text = texts[number];
    if (!text) text = makeTextOfUtf8(heap, program->text(number));
    return text;
}

Slot* Execution::pushFrame(const LoadedProcedure& procedure, FrameKind kind) {
    Slot *const base = nextBase(), *const end = base + procedure.slots;
    if (end > stackEnd) throw basic::RuntimeError(basic::kOutOfStackSpace);
    RareFrame* const rare = kind == FrameKind::Call ? nullptr : newRare();
    if (rare) rare->kind = kind;
    *++frame = {procedure.code, base, end, &procedure, nullptr, image::kNoSlot, ErrorMode::None, 0, rare};
    return base;
}

void Execution::pushTask(std::unique_ptr<Task> task, std::uint8_t result) {
    RareFrame* rare = nullptr;
    try {
        if (nextBase() + kNoProcedure.slots > stackEnd) throw basic::RuntimeError(basic::kOutOfStackSpace);
        rare = newRare();
    } catch (...) {
        task->release(heap);
        throw;
    }
    rare->kind = FrameKind::Task;
    rare->task = std::move(task);
    Slot* const base = nextBase();
    *++frame = {nullptr, base, base + kNoProcedure.slots, &kNoProcedure, nullptr, result, ErrorMode::None, 0, rare};
}

void Execution::leaveTop() {
    Frame& top = *frame;
    clearManaged(heap, top.base, top.procedure->managed);
    for (std::uint32_t i = 0; i < top.procedure->slots; ++i) top.base[i].bits = 0;
    if (top.rare && top.rare->task) top.rare->task->release(heap);
    if (top.rare && top.rare->terminating) finishTerminate(*top.rare);
    dropRare(top);
    --frame;
}

} // namespace tamarik
