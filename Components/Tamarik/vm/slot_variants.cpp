#include "Components/Tamarik/vm/slot_variants.h"

namespace tamarik {

Variant variantOfSlot(const Slot* slots, image::SlotType type) {
    if (type.form == image::TypeForm::Array) return ofArray(slots->array);
    const VariantKind kind = kindOf(type.base);
    switch (slotBase(type.base)) {
    case image::BaseType::Long: return ofNumber(slots->number, kind);
    case image::BaseType::Double: return ofFraction(slots->fraction, kind);
    case image::BaseType::Currency: return ofCurrency(slots->currency);
    case image::BaseType::Text: return ofText(slots->text);
    case image::BaseType::Object: return ofObject(slots->object);
    case image::BaseType::Variant: return variantAt(slots);
    default: return {};
    }
}

} // namespace tamarik
