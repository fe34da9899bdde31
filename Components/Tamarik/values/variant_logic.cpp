// The bitwise operators on Variants, with the three-valued logic of Null.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_operators.h"

namespace tamarik {

using image::BaseType;
using image::VariantOperator;

namespace {

VariantKind bitsKind(const Variant& v) {
    switch (v.kind) {
    case kBoolean: return kBoolean;
    case kByte: return kByte;
    case kEmpty:
    case kInteger: return kInteger;
    default: return kLong;
    }
}

VariantKind commonKind(const Variant& a, const Variant& b) {
    const VariantKind left = bitsKind(a), right = bitsKind(b);
    if (left == right) return left;
    return left == kLong || right == kLong ? kLong : kInteger;
}

std::int32_t bitsOf(const Variant& v) { return longOf(v, BaseType::Long); }

std::int32_t combine(VariantOperator op, std::int32_t x, std::int32_t y) {
    switch (op) {
    case VariantOperator::And: return x & y;
    case VariantOperator::Or: return x | y;
    case VariantOperator::Xor: return x ^ y;
    case VariantOperator::Eqv: return ~(x ^ y);
    default: return ~x | y;
    }
}

Variant ofBits(std::int32_t bits, VariantKind kind) { return ofNumber(kind == kByte ? bits & 0xFF : bits, kind); }

/// One operand is Null: the result is known only if the other one decides it.
Variant withNull(VariantOperator op, const Variant& a, const Variant& b) {
    const bool isLeftNull = a.kind == kNull;
    if (isLeftNull && b.kind == kNull) return ofKind(kNull);
    const Variant& known = isLeftNull ? b : a;
    const VariantKind kind = bitsKind(known);
    const std::int32_t bits = bitsOf(known), ones = kind == kByte ? 0xFF : -1;
    if (op == VariantOperator::And && bits == 0) return ofBits(0, kind);
    if (op == VariantOperator::Or && bits == ones) return ofBits(ones, kind);
    if (op == VariantOperator::Imp && isLeftNull && bits == ones) return ofBits(ones, kind);
    if (op == VariantOperator::Imp && !isLeftNull && bits == 0) return ofBits(-1, kind);
    return ofKind(kNull);
}

} // namespace

Variant logicalResult(VariantOperator op, const Variant& a, const Variant& b) {
    if (a.kind == kNull || b.kind == kNull) return withNull(op, a, b);
    return ofBits(combine(op, bitsOf(a), bitsOf(b)), commonKind(a, b));
}

Variant logicalNot(const Variant& a) {
    if (a.kind == kNull) return ofKind(kNull);
    return ofBits(~bitsOf(a), bitsKind(a));
}

} // namespace tamarik
