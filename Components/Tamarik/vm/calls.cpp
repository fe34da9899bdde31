// Calls: arguments, functions of the runtime, and returns that are more than a number.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/vm/array_operations.h"
#include "Components/Tamarik/vm/execution.h"
#include "Components/Tamarik/vm/slot_values.h"
#include "Components/Tamarik/vm/slot_variants.h"
#include "Components/Tamarik/vm/wait_task.h"
#include <algorithm>
#include <utility>

namespace tamarik {

namespace {

using image::Pass;

Slot* passOne(Heap& heap, Slot* target, Slot* base, std::uint16_t argument) {
    Slot* const slot = base + image::slotOf(argument);
    switch (image::passOf(argument)) {
    case Pass::Number: target->bits = slot->bits; return target + 1;
    case Pass::Text: target->text = retain(slot->text); return target + 1;
    case Pass::Object: retain(target->object = slot->object); return target + 1;
    case Pass::Variant: variantAt(target) = copyOf(heap, variantAt(slot)); return target + 2;
    case Pass::Take:
        target->bits = slot->bits;
        slot->bits = 0;
        return target + 1;
    case Pass::TakePair:
        target[0].bits = slot[0].bits;
        target[1].bits = slot[1].bits;
        slot[0].bits = slot[1].bits = 0;
        return target + 2;
    case Pass::Address: target->pointer = slot; return target + 2;
    case Pass::Ref: setReference(heap, target, slot[0].pointer, slot[1].owner); return target + 2;
    }
    return target;
}

} // namespace

void Execution::passArguments(Slot* target, const std::uint32_t* words, std::uint32_t count,
                              std::span<const ManagedSlot> managed) {
    Slot* const first = target;
    try {
        for (std::uint32_t i = 0; i < count; ++i) target = passOne(heap, target, frame->base, halfAt(words, i));
    } catch (...) {
        clearManaged(heap, first, managed);
        std::fill(first, target, Slot{});
        throw;
    }
}

void Execution::enter(const LoadedProcedure& procedure, const std::uint32_t* words, std::uint32_t count,
                      std::uint32_t result) {
    Slot *const base = nextBase(), *const end = base + procedure.slots;
    if (end > stackEnd) throw basic::RuntimeError(basic::kOutOfStackSpace);
    passArguments(base, words, count, procedure.managed);
    *++frame = {procedure.code,  base, end,    &procedure, nullptr, static_cast<std::uint8_t>(result),
                ErrorMode::None, 0,    nullptr};
}

void Execution::callNative(const std::uint32_t* ip) {
    const image::Word word(*ip);
    const BoundNative& native = imports[ip[1]];
    Slot* const base = frame->base;
    Slot* const arguments = nextBase();
    if (arguments + native.slots > stackEnd) throw basic::RuntimeError(basic::kOutOfStackSpace);
    passArguments(arguments, ip + 2, word.c, native.managed);
    const image::CodeImage& code = program->code();
    NativeCall call{session, arguments, {}, &code.imports[ip[1]], &code};
    const auto clear = [&] {
        clearManaged(heap, arguments, native.managed);
        std::fill(arguments, arguments + native.slots, Slot{});
        budget -= static_cast<std::int64_t>(session.takeWork());
    };
    try {
        native.call(call);
    } catch (...) {
        clear();
        throw;
    }
    clear();
    storeResult(word.a == image::kNoSlot ? nullptr : base + word.a, native.result, call.result);
}

void Execution::beginWait(const std::uint32_t* ip) {
    auto request = *std::exchange(session.wait, std::nullopt);
    pushTask(std::make_unique<WaitTask>(std::move(request), imports[ip[1]].result),
             static_cast<std::uint8_t>(image::Word(*ip).a));
}

void Execution::storeResult(Slot* target, ValueKind kind, const Slot* value) {
    Slot unwanted[2]{};
    Slot* const to = target ? target : unwanted;
    switch (kind) {
    case ValueKind::Number: *to = *value; break;
    case ValueKind::Text: setText(heap, *to, value->text); break;
    case ValueKind::Object: setObject(heap, *to, value->object); break;
    case ValueKind::Array: setArray(heap, *to, value->array); break;
    case ValueKind::Variant: {
        Variant result = variantAt(value);
        result.flags &= Variant::kNegative;
        setVariant(heap, to, result);
        break;
    }
    default: break;
    }
    if (target) return;
    if (kind == ValueKind::Text) release(heap, unwanted[0].text);
    if (kind == ValueKind::Object) release(heap, unwanted[0].object);
    if (kind == ValueKind::Array) release(heap, unwanted[0].array);
    if (kind == ValueKind::Variant) release(heap, variantAt(unwanted));
}

void Execution::deliver(const Variant& result) {
    Frame& below = *(frame - 1);
    if (below.rare && below.rare->task) return below.rare->task->returned(*this, result);
    if (frame->result == image::kNoSlot) return release(heap, result);
    setVariant(heap, below.base + frame->result, result);
}

void Execution::returnSlowly() {
    Frame& top = *frame;
    const LoadedProcedure& procedure = *top.procedure;
    const FrameKind kind = top.rare ? top.rare->kind : FrameKind::Call;
    if (top.rare && top.rare->inHandler) clearErr();
    Slot value[2]{};
    if (procedure.result != ValueKind::None) {
        Slot* const result = top.base + procedure.resultSlot;
        value[0] = result[0];
        result[0].bits = 0;
        if (procedure.result == ValueKind::Variant) {
            value[1] = result[1];
            result[1].bits = 0;
        }
    }
    const std::uint8_t wanted = top.result;
    const image::SlotType type =
        procedure.result == ValueKind::None ? image::SlotType{} : procedure.types[procedure.resultSlot];
    leaveTop();
    if (kind == FrameKind::TaskCall) return frame->rare->task->returned(*this, variantOfSlot(value, type));
    storeResult(kind != FrameKind::Call || wanted == image::kNoSlot ? nullptr : frame->base + wanted, procedure.result,
                value);
}

} // namespace tamarik
