#include "Components/Tamarik/vm/slot_values.h"

namespace tamarik {

void copyManagedValue(Heap& heap, Slot* target, const Slot* source, ValueKind kind) {
    switch (kind) {
    case ValueKind::Text: setText(heap, *target, retain(source->text)); break;
    case ValueKind::Object:
        retain(source->object);
        setObject(heap, *target, source->object);
        break;
    case ValueKind::Array:
        retain(source->array);
        setArray(heap, *target, source->array);
        break;
    case ValueKind::Variant: setVariant(heap, target, copyOf(heap, variantAt(source))); break;
    case ValueKind::Reference: setReference(heap, target, source[0].pointer, source[1].owner); break;
    default: target->bits = source->bits;
    }
}

} // namespace tamarik
