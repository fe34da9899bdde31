#include "Components/Tamarik/values/records.h"
#include "Components/Tamarik/values/object.h"
#include <algorithm>

namespace tamarik {

void lock(Counted* owner) {
    retain(owner);
    if (owner && owner->kind == Counted::Kind::Array) ++static_cast<ArrayBlock*>(owner)->locks;
}

void unlock(Counted* owner) {
    if (owner && owner->kind == Counted::Kind::Array) --static_cast<ArrayBlock*>(owner)->locks;
}

void releaseSlot(Heap& heap, const Slot* slot, Managed kind) {
    switch (kind) {
    case Managed::Text: release(heap, slot->text); break;
    case Managed::Object: release(heap, slot->object); break;
    case Managed::Array: release(heap, slot->array); break;
    case Managed::Variant: release(heap, variantAt(slot)); break;
    case Managed::Reference: unlock(slot[1].owner); release(heap, slot[1].owner);
    }
}

void clearManaged(Heap& heap, Slot* slots, std::span<const ManagedSlot> managed) {
    for (const ManagedSlot& field : managed) {
        Slot* const slot = slots + field.slot;
        releaseSlot(heap, slot, field.kind);
        slot[0].bits = 0;
        if (field.kind == Managed::Variant || field.kind == Managed::Reference) slot[1].bits = 0;
    }
}

namespace {

/// Makes what a field of a new record holds.
void prepareField(Heap& heap, Slot* record, const PreparedField& field) {
    Slot& slot = record[field.slot];
    if (field.array)
        slot.array = makeArray(heap, field.array->element, field.array->bounds);
    else
        slot.text = makeFilled(heap, field.fixedLength, u'\0');
}

} // namespace

void prepareRecord(Heap& heap, Slot* record, const RecordShape& shape) {
    std::vector<Slot> fresh(shape.slots);
    try {
        for (const PreparedField& field : shape.prepared) prepareField(heap, fresh.data(), field);
    } catch (...) {
        clearManaged(heap, fresh.data(), shape.managed);
        throw;
    }
    std::swap_ranges(fresh.begin(), fresh.end(), record);
    clearManaged(heap, fresh.data(), shape.managed);
}

void copyRecord(Heap& heap, Slot* target, const Slot* source, const RecordShape& shape) {
    if (target == source) return;
    std::vector<Slot> copy(source, source + shape.slots);
    for (const ManagedSlot& field : shape.managed) {
        Slot* const slot = copy.data() + field.slot;
        if (field.kind == Managed::Variant)
            slot[0].bits = slot[1].bits = 0;
        else
            slot->bits = 0;
    }
    try {
        for (const ManagedSlot& field : shape.managed) {
            Slot* const slot = copy.data() + field.slot;
            const Slot* const from = source + field.slot;
            if (field.kind == Managed::Text) slot->text = retain(from->text);
            if (field.kind == Managed::Object) retain(slot->object = from->object);
            if (field.kind == Managed::Array) slot->array = from->array ? copyOf(heap, *from->array) : nullptr;
            if (field.kind == Managed::Variant) variantAt(slot) = copyOf(heap, variantAt(from));
        }
    } catch (...) {
        clearManaged(heap, copy.data(), shape.managed);
        throw;
    }
    std::swap_ranges(copy.begin(), copy.end(), target);
    clearManaged(heap, copy.data(), shape.managed);
}

} // namespace tamarik
