#include "Components/Tamarik/values/decimal_values.h"
#include "Basic/conversions.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/numbers/decimal96.h"
#include "Components/Tamarik/values/encoding.h"
#include "Components/Tamarik/values/variant_conversion.h"

namespace tamarik {

using image::VariantOperator;

namespace {

Decimal96 stored(const Variant& v) {
    return {{static_cast<std::uint32_t>(v.low), static_cast<std::uint32_t>(v.low >> 32), v.high},
            v.scale,
            (v.flags & Variant::kNegative) != 0};
}

} // namespace

Decimal96 decimalOf(const Variant& v) {
    switch (v.kind) {
    case kDecimal: return stored(v);
    case kCurrency: return basic::Currency{v.currency};
    case kSingle: return Decimal96::fromSingle(static_cast<float>(v.fraction));
    case kDouble:
    case kDate: return Decimal96::fromDouble(v.fraction);
    case kString: return Decimal96::parse(toUtf8(unitsOf(v.text)));
    default: return std::int64_t{longOf(v, image::BaseType::Long)};
    }
}

TextBlock* textOfDecimal(Heap& heap, const Variant& v) { return makeTextOfUtf8(heap, stored(v).text()); }

double doubleOfDecimal(const Variant& v) { return stored(v).toDouble(); }

Variant ofDecimal(const Decimal96& number) {
    Variant v = ofKind(kDecimal);
    v.low = number.limbs()[0] | std::uint64_t{number.limbs()[1]} << 32;
    v.high = number.limbs()[2];
    v.scale = static_cast<std::uint8_t>(number.scale());
    if (number.isNegative()) v.flags = Variant::kNegative;
    return v;
}

Variant toDecimal(const Variant& v) { return ofDecimal(decimalOf(v)); }

std::int64_t currencyOfDecimal(const Variant& v) { return stored(v).toCurrency().scaled; }

int compareDecimals(const Variant& a, const Variant& b) {
    const auto order = decimalOf(a) <=> decimalOf(b);
    return (order > 0) - (order < 0);
}

Variant decimalResult(VariantOperator op, const Variant& a, const Variant& b) {
    const Decimal96 x = decimalOf(a), y = decimalOf(b);
    switch (op) {
    case VariantOperator::Add: return ofDecimal(x + y);
    case VariantOperator::Subtract: return ofDecimal(x - y);
    case VariantOperator::Multiply: return ofDecimal(x * y);
    case VariantOperator::Divide: return ofDecimal(x / y);
    case VariantOperator::IntDivide: return ofDecimal(integerDivide(x, y));
    default: return ofDecimal(mod(x, y));
    }
}

} // namespace tamarik
