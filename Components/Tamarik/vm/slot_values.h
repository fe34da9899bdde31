#pragma once
// Assignments to slots: the new value is complete before the old one is released.
#include "Components/Tamarik/values/instance.h"
#include "Components/Tamarik/values/records.h"
#include "Components/Tamarik/vm/program.h"

namespace tamarik {

// These take over the reference.
inline void setText(Heap& heap, Slot& slot, TextBlock* text) {
    TextBlock* const old = slot.text;
    slot.text = text;
    release(heap, old);
}
inline void setObject(Heap& heap, Slot& slot, Object* object) {
    Object* const old = slot.object;
    slot.object = object;
    release(heap, old);
}
inline void setArray(Heap& heap, Slot& slot, ArrayBlock* array) {
    ArrayBlock* const old = slot.array;
    slot.array = array;
    release(heap, old);
}
inline void setVariant(Heap& heap, Slot* slots, const Variant& value) {
    const Variant old = variantAt(slots);
    variantAt(slots) = value;
    release(heap, old);
}

/// Makes the pair of slots a reference, which counts and locks its owner.
inline void setReference(Heap& heap, Slot* slots, Slot* pointer, Counted* owner) {
    Counted* const old = slots[1].owner;
    if (owner) lock(owner);
    slots[0].pointer = pointer;
    slots[1].owner = owner;
    if (old) {
        unlock(old);
        release(heap, old);
    }
}

/// Assigns a copy; an array is shared.
void copyManagedValue(Heap& heap, Slot* target, const Slot* source, ValueKind kind);
inline void copyValue(Heap& heap, Slot* target, const Slot* source, ValueKind kind) {
    if (kind == ValueKind::Number)
        target->bits = source->bits;
    else
        copyManagedValue(heap, target, source, kind);
}

/// The object is an instance: verified code knows its class.
inline Slot* fieldsOf(Object* object) { return static_cast<Instance*>(object)->fields(); }

} // namespace tamarik
