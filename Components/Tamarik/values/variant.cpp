#include "Components/Tamarik/values/variant.h"
#include "Components/Tamarik/values/array_block.h"
#include "Components/Tamarik/values/object.h"

namespace tamarik {

Variant ofNumber(std::int32_t number, VariantKind kind) {
    Variant v = ofKind(kind);
    v.number = number;
    return v;
}

Variant ofFraction(double fraction, VariantKind kind) {
    Variant v = ofKind(kind);
    v.fraction = fraction;
    return v;
}

Variant ofCurrency(std::int64_t scaled) {
    Variant v = ofKind(kCurrency);
    v.currency = scaled;
    return v;
}

Variant ofText(TextBlock* text) {
    Variant v = ofKind(kString);
    v.text = text;
    return v;
}

Variant ofObject(Object* object) {
    Variant v = ofKind(kObject);
    v.object = object;
    return v;
}

Variant ofArray(ArrayBlock* array) {
    Variant v;
    v.kind = static_cast<std::uint16_t>(kArray | (array ? kindOf(array->element.type.base) : kVariant));
    v.array = array;
    return v;
}

Variant missing() { return ofNumber(kMissingArgument, kError); }

void releaseManaged(Heap& heap, const Variant& v) {
    if (v.kind == kString)
        release(heap, v.text);
    else if (v.kind == kObject)
        release(heap, v.object);
    else if (v.isArray())
        release(heap, v.array);
}

Variant sharedOf(const Variant& v) {
    Variant copy = v;
    copy.flags &= Variant::kNegative;
    if (v.kind == kString)
        retain(v.text);
    else if (v.kind == kObject)
        retain(v.object);
    else if (v.isArray())
        retain(v.array);
    return copy;
}

Variant copyOf(Heap& heap, const Variant& v) {
    if (!v.isArray()) return sharedOf(v);
    Variant copy = v;
    copy.flags = 0;
    copy.array = v.array ? copyOf(heap, *v.array) : nullptr;
    return copy;
}

VariantKind kindOf(image::BaseType type) {
    using image::BaseType;
    switch (type) {
    case BaseType::Boolean: return kBoolean;
    case BaseType::Byte: return kByte;
    case BaseType::Integer: return kInteger;
    case BaseType::Long: return kLong;
    case BaseType::Single: return kSingle;
    case BaseType::Double: return kDouble;
    case BaseType::Currency: return kCurrency;
    case BaseType::Date: return kDate;
    case BaseType::Text: return kString;
    case BaseType::Object: return kObject;
    case BaseType::Record: return kRecord;
    default: return kVariant;
    }
}

} // namespace tamarik
