#include "Components/Tamarik/values/variant_operators.h"
#include "Components/Tamarik/values/held.h"
#include "Components/Tamarik/values/number_texts.h"
#include "Components/Tamarik/values/variant_text.h"

namespace tamarik {

using image::VariantOperator;

namespace {

/// Null joins as the empty text.
TextBlock* joinedText(Heap& heap, const Variant& v) { return v.kind == kNull ? nullptr : textOf(heap, v); }

Variant joined(Heap& heap, const Variant& a, const Variant& b) {
    if (a.kind == kNull && b.kind == kNull) return ofKind(kNull);
    const HeldText left(heap, joinedText(heap, a)), right(heap, joinedText(heap, b));
    return ofText(join(heap, left, right));
}

Variant likeResult(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b) {
    if (a.kind == kNull || b.kind == kNull) return ofKind(kNull);
    const HeldText left(heap, textOf(heap, a)), right(heap, textOf(heap, b));
    return ofBoolean(isLike(unitsOf(left), unitsOf(right), word.comparesText));
}

bool holds(VariantOperator op, int order) {
    switch (op) {
    case VariantOperator::Equal: return order == 0;
    case VariantOperator::NotEqual: return order != 0;
    case VariantOperator::Less: return order < 0;
    case VariantOperator::LessEqual: return order <= 0;
    case VariantOperator::Greater: return order > 0;
    default: return order >= 0;
    }
}

Variant comparisonResult(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b) {
    if (a.kind == kNull || b.kind == kNull) return ofKind(kNull);
    return ofBoolean(holds(word.op, compareVariants(heap, word, a, b)));
}

} // namespace

image::OperationWord operationOf(std::uint32_t packed) {
    return {static_cast<VariantOperator>(packed & 0xFF), (packed >> 8 & 0xFF) != 0,
            static_cast<image::BaseType>(packed >> 16 & 0xFF), static_cast<image::BaseType>(packed >> 24)};
}

Variant operate(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b) {
    switch (word.op) {
    case VariantOperator::Add: return sumOrJoin(heap, word, a, b);
    case VariantOperator::Concat: return joined(heap, a, b);
    case VariantOperator::Like: return likeResult(heap, word, a, b);
    case VariantOperator::Equal:
    case VariantOperator::NotEqual:
    case VariantOperator::Less:
    case VariantOperator::LessEqual:
    case VariantOperator::Greater:
    case VariantOperator::GreaterEqual: return comparisonResult(heap, word, a, b);
    case VariantOperator::And:
    case VariantOperator::Or:
    case VariantOperator::Xor:
    case VariantOperator::Eqv:
    case VariantOperator::Imp: return logicalResult(word.op, a, b);
    default: return arithmeticResult(word.op, a, b);
    }
}

Variant operateUnary(Heap& heap, VariantOperator op, const Variant& a) {
    if (op == VariantOperator::Negate) return negated(a);
    if (op == VariantOperator::Not) return logicalNot(a);
    return copyOf(heap, a);
}

} // namespace tamarik
