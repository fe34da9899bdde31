// Arithmetic on Variants. A whole number that does not fit widens: Byte, Integer, Long, Double.
#include "Basic/arithmetic.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/decimal_values.h"
#include "Components/Tamarik/values/rounding.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_operators.h"
#include "Components/Tamarik/values/variant_text.h"
#include <algorithm>
#include <cmath>

namespace tamarik {

using image::BaseType;
using image::VariantOperator;

namespace {

/// The order of precision that decides the type of a result. A Currency is less precise than a Double in a product alone.
int rankOf(std::uint16_t kind, bool isProduct) {
    switch (kind) {
    case kByte: return 0;
    case kEmpty:
    case kBoolean:
    case kInteger: return 1;
    case kLong: return 2;
    case kSingle: return 3;
    case kString:
    case kDouble: return 5;
    case kCurrency: return isProduct ? 4 : 6;
    case kDate: return 7;
    case kDecimal: return 8;
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

std::uint16_t resultKind(const Variant& a, const Variant& b, bool isProduct) {
    const int left = rankOf(a.kind, isProduct), right = rankOf(b.kind, isProduct);
    const int high = std::max(left, right), low = std::min(left, right);
    switch (high) {
    case 0: return kByte;
    case 1: return kInteger;
    case 2: return kLong;
    case 3: return low == 2 ? kDouble : kSingle;
    case 4: return kCurrency;
    case 5: return kDouble;
    case 6: return kCurrency;
    case 7: return kDate;
    default: return kDecimal;
    }
}

/// A whole number in the narrowest kind from `kind` on that holds it.
Variant widened(std::int64_t number, std::uint16_t kind) {
    if (kind == kByte && number >= 0 && number <= 255) return ofNumber(static_cast<std::int32_t>(number), kByte);
    if (kind != kLong && number == static_cast<std::int16_t>(number))
        return ofNumber(static_cast<std::int32_t>(number), kInteger);
    if (number == static_cast<std::int32_t>(number)) return ofNumber(static_cast<std::int32_t>(number), kLong);
    return ofFraction(static_cast<double>(number));
}

Variant finite(double value, std::uint16_t kind) {
    if (!isFinite(value)) throw basic::RuntimeError(basic::kOverflow);
    if (kind == kSingle) {
        if (std::fabs(value) < 0x1.FFFFFFp127) return ofFraction(static_cast<float>(value), kSingle);
        return ofFraction(value);
    }
    if (kind == kDate && value > -657435 && value < 2958466) return ofFraction(value, kDate);
    return ofFraction(value);
}

std::int64_t wholeResult(VariantOperator op, std::int64_t x, std::int64_t y) {
    if (op == VariantOperator::Add) return x + y;
    return op == VariantOperator::Subtract ? x - y : x * y;
}

double fractionResult(VariantOperator op, double x, double y) {
    if (op == VariantOperator::Add) return x + y;
    return op == VariantOperator::Subtract ? x - y : x * y;
}

Variant currencyResult(VariantOperator op, const Variant& a, const Variant& b) {
    const basic::Currency x{currencyOf(a)}, y{currencyOf(b)};
    if (op == VariantOperator::Add) return ofCurrency(basic::Add(x, y).scaled);
    return ofCurrency((op == VariantOperator::Subtract ? basic::Subtract(x, y) : basic::Multiply(x, y)).scaled);
}

Variant simpleResult(VariantOperator op, const Variant& a, const Variant& b) {
    std::uint16_t kind = resultKind(a, b, op == VariantOperator::Multiply);
    if (kind <= kLong || kind == kByte)
        return widened(wholeResult(op, longOf(a, BaseType::Long), longOf(b, BaseType::Long)), kind);
    if (kind == kCurrency) return currencyResult(op, a, b);
    if (kind == kDecimal) return decimalResult(op, a, b);
    if (kind == kDate && (op == VariantOperator::Multiply || (op == VariantOperator::Subtract && a.kind == b.kind)))
        kind = kDouble;
    return finite(fractionResult(op, fractionOf(a, BaseType::Double), fractionOf(b, BaseType::Double)), kind);
}

Variant quotient(const Variant& a, const Variant& b) {
    const std::uint16_t kind = resultKind(a, b, true);
    if (kind == kDecimal) return decimalResult(VariantOperator::Divide, a, b);
    const double x = fractionOf(a, BaseType::Double), y = fractionOf(b, BaseType::Double);
    return finite(basic::Divide(x, y), kind == kSingle ? kSingle : kDouble);
}

/// \ and Mod: of whole numbers, in the type that holds both.
Variant wholeDivision(VariantOperator op, const Variant& a, const Variant& b) {
    const std::uint16_t both = resultKind(a, b, false);
    if (both == kDecimal) return decimalResult(op, a, b);
    const std::uint16_t kind = both == kByte || both == kInteger ? both : std::uint16_t{kLong};
    const std::int64_t x = longOf(a, BaseType::Long), y = longOf(b, BaseType::Long);
    if (y == 0) throw basic::RuntimeError(basic::kDivisionByZero);
    const std::int64_t result = op == VariantOperator::Mod ? x % y : x / y;
    if (result != static_cast<std::int32_t>(result)) throw basic::RuntimeError(basic::kOverflow);
    return widened(result, kind);
}

bool isText(const Variant& v, BaseType declared) { return v.kind == kString && declared == BaseType::Text; }

} // namespace

Variant arithmeticResult(VariantOperator op, const Variant& a, const Variant& b) {
    if (a.kind == kNull || b.kind == kNull) return ofKind(kNull);
    switch (op) {
    case VariantOperator::Divide: return quotient(a, b);
    case VariantOperator::IntDivide:
    case VariantOperator::Mod: return wholeDivision(op, a, b);
    case VariantOperator::Power:
        return ofFraction(basic::Power(fractionOf(a, BaseType::Double), fractionOf(b, BaseType::Double)));
    default: return simpleResult(op, a, b);
    }
}

Variant sumOrJoin(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b) {
    if (a.kind == kNull || b.kind == kNull) return ofKind(kNull);
    if (a.kind == kEmpty && b.kind == kEmpty) return ofNumber(0, kInteger);
    if (a.kind == kEmpty || b.kind == kEmpty) return copyOf(heap, a.kind == kEmpty ? b : a);
    const bool bothTexts = a.kind == kString && b.kind == kString;
    // A String beside a Variant joins; two typed operands of which one is a number add.
    const bool joins = bothTexts || (isText(a, word.left) && word.right == BaseType::Variant) ||
                       (isText(b, word.right) && word.left == BaseType::Variant);
    if (!joins) return arithmeticResult(VariantOperator::Add, a, b);
    image::OperationWord concat = word;
    concat.op = VariantOperator::Concat;
    return operate(heap, concat, a, b);
}

Variant negated(const Variant& a) {
    switch (a.kind) {
    case kNull: return ofKind(kNull);
    case kEmpty: return ofNumber(0, kInteger);
    case kCurrency: return ofCurrency(basic::Negate(basic::Currency{a.currency}).scaled);
    case kDecimal: {
        Variant result = a;
        result.flags = (a.flags ^ Variant::kNegative) & Variant::kNegative;
        return result;
    }
    case kLong: return widened(-std::int64_t{a.number}, kLong);
    case kBoolean:
    case kByte:
    case kInteger: return widened(-std::int64_t{a.number}, kInteger);
    case kSingle:
    case kDate: return finite(-a.fraction, a.kind);
    default: return ofFraction(-fractionOf(a, BaseType::Double));
    }
}

} // namespace tamarik
