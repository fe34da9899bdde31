#include "Components/Tamarik/values/variant_conversion.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/decimal_values.h"
#include "Components/Tamarik/values/number_texts.h"
#include "Components/Tamarik/values/rounding.h"
#include "Components/Tamarik/values/variant_text.h"
#include <cmath>

namespace tamarik {

using image::BaseType;

namespace {

[[noreturn]] void mismatch(const Variant& v) {
    throw basic::RuntimeError(v.kind == kNull ? basic::kInvalidUseOfNull : basic::kTypeMismatch);
}

std::int32_t limited(std::int32_t number, BaseType type) {
    const bool fits = type == BaseType::Byte      ? number >= 0 && number <= 255
                      : type == BaseType::Integer ? number == static_cast<std::int16_t>(number)
                                                  : true;
    if (!fits) throw basic::RuntimeError(basic::kOverflow);
    return number;
}

bool booleanOf(const Variant& v) {
    switch (v.kind) {
    case kEmpty: return false;
    case kBoolean:
    case kByte:
    case kInteger:
    case kLong: return v.number != 0;
    case kSingle:
    case kDouble:
    case kDate: return v.fraction != 0;
    case kCurrency: return v.currency != 0;
    case kDecimal: return v.low != 0 || v.high != 0;
    case kString: return longOfText(unitsOf(v.text), BaseType::Boolean) != 0;
    default: mismatch(v);
    }
}

double doubleOf(const Variant& v) {
    switch (v.kind) {
    case kEmpty: return 0;
    case kBoolean:
    case kByte:
    case kInteger:
    case kLong: return v.number;
    case kSingle:
    case kDouble:
    case kDate: return v.fraction;
    case kCurrency: return static_cast<double>(v.currency) / 10000;
    case kDecimal: return doubleOfDecimal(v);
    default: mismatch(v);
    }
}

} // namespace

bool isWhole(std::uint16_t kind) { return kind == kBoolean || kind == kByte || kind == kInteger || kind == kLong; }

bool isNumeric(const Variant& v) {
    switch (v.kind) {
    case kSingle:
    case kDouble:
    case kDate:
    case kCurrency:
    case kDecimal: return true;
    default: return isWhole(v.kind);
    }
}

std::int32_t longOf(const Variant& v, BaseType type) {
    if (type == BaseType::Boolean) return booleanOf(v) ? -1 : 0;
    switch (v.kind) {
    case kEmpty: return 0;
    case kBoolean: return type == BaseType::Byte ? v.number & 0xFF : v.number;
    case kByte:
    case kInteger:
    case kLong: return limited(v.number, type);
    case kCurrency: return limited(longOfCurrency(v.currency), type);
    case kString: return longOfText(unitsOf(v.text), type);
    default: return limited(toLong(doubleOf(v)), type);
    }
}

double fractionOf(const Variant& v, BaseType type) {
    if (v.kind == kString) return fractionOfText(unitsOf(v.text), type);
    const double number = doubleOf(v);
    if (type == BaseType::Single) return toSingle(number);
    return type == BaseType::Date ? toDate(number) : number;
}

std::int64_t currencyOf(const Variant& v) {
    if (v.kind == kCurrency) return v.currency;
    if (v.kind == kDecimal) return currencyOfDecimal(v);
    if (isWhole(v.kind)) return std::int64_t{v.number} * 10000;
    if (v.kind == kString) return currencyOfText(unitsOf(v.text));
    return toCurrency(doubleOf(v));
}

bool isTrue(const Variant& v) { return v.kind != kNull && booleanOf(v); }

Variant converted(Heap& heap, const Variant& v, std::uint16_t kind) {
    switch (kind) {
    case kBoolean: return ofNumber(longOf(v, BaseType::Boolean), kBoolean);
    case kByte: return ofNumber(longOf(v, BaseType::Byte), kByte);
    case kInteger: return ofNumber(longOf(v, BaseType::Integer), kInteger);
    case kLong: return ofNumber(longOf(v, BaseType::Long), kLong);
    case kSingle: return ofFraction(fractionOf(v, BaseType::Single), kSingle);
    case kDouble: return ofFraction(fractionOf(v, BaseType::Double), kDouble);
    case kDate: return ofFraction(fractionOf(v, BaseType::Date), kDate);
    case kCurrency: return ofCurrency(currencyOf(v));
    case kString: return ofText(textOf(heap, v));
    case kDecimal: return toDecimal(v);
    case kObject:
        if (v.kind != kObject) throw basic::RuntimeError(basic::kObjectRequired);
        return sharedOf(v);
    default:
        if ((kind & kArray) != 0 && v.kind != kind) throw basic::RuntimeError(basic::kTypeMismatch);
        return copyOf(heap, v);
    }
}

void assign(Heap& heap, Variant& target, const Variant& source) {
    const bool isFixed = (target.flags & Variant::kFixed) != 0;
    Variant value = isFixed ? converted(heap, source, target.kind) : copyOf(heap, source);
    if (isFixed) value.flags |= Variant::kFixed;
    const Variant old = target;
    target = value;
    release(heap, old);
}

} // namespace tamarik
