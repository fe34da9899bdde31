#include "Components/Tamarik/values/variant_text.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/array_block.h"
#include "Components/Tamarik/values/decimal_values.h"
#include "Components/Tamarik/values/held.h"
#include "Components/Tamarik/values/number_texts.h"
#include <memory>

namespace tamarik {

using image::BaseType;

namespace {

bool isPrintedAsNumber(const Variant& v) {
    switch (v.kind) {
    case kByte:
    case kInteger:
    case kLong:
    case kSingle:
    case kDouble:
    case kCurrency:
    case kDecimal: return true;
    default: return false;
    }
}

} // namespace

TextBlock* textOf(Heap& heap, const Variant& v) {
    switch (v.kind) {
    case kEmpty: return nullptr;
    case kNull: throw basic::RuntimeError(basic::kInvalidUseOfNull);
    case kBoolean: return textOfLong(heap, v.number, BaseType::Boolean);
    case kByte:
    case kInteger:
    case kLong: return textOfLong(heap, v.number, BaseType::Long);
    case kSingle: return textOfFraction(heap, v.fraction, BaseType::Single);
    case kDouble: return textOfFraction(heap, v.fraction, BaseType::Double);
    case kDate: return textOfFraction(heap, v.fraction, BaseType::Date);
    case kCurrency: return textOfCurrency(heap, v.currency);
    case kDecimal: return textOfDecimal(heap, v);
    case kString: return retain(v.text);
    case kError: {
        const Variant number = ofNumber(v.isMissing() ? 448 : v.number);
        TextBlock* const digits = textOf(heap, number);
        TextBlock* const text = makeText(heap, u"Error " + std::u16string(unitsOf(digits)));
        release(heap, digits);
        return text;
    }
    default:
        if (v.kind != (kArray | kByte)) throw basic::RuntimeError(basic::kTypeMismatch);
        return v.array ? makeText(heap, v.array->data, v.array->size) : nullptr;
    }
}

std::u16string printedText(const Variant& v) {
    if (v.kind == kNull) return u"Null";
    if (v.kind == kString) return std::u16string(unitsOf(v.text));
    Heap heap;
    const HeldText text(heap, textOf(heap, v));
    std::u16string printed(unitsOf(text));
    if (!isPrintedAsNumber(v)) return printed;
    if (printed.front() != u'-') printed.insert(0, 1, u' ');
    return printed + u' ';
}

} // namespace tamarik
