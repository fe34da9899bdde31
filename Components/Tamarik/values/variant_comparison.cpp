// Comparison of Variants. The declared types of the operands decide how a text and a number are compared.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/decimal_values.h"
#include "Components/Tamarik/values/held.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_operators.h"
#include "Components/Tamarik/values/variant_text.h"

namespace tamarik {

using image::BaseType;

namespace {

template <class T>
int order(T x, T y) {
    return (x > y) - (x < y);
}

bool isFraction(const Variant& v) { return v.kind == kSingle || v.kind == kDouble; }

int compareNumbers(const Variant& a, const Variant& b) {
    if (isWhole(a.kind) && isWhole(b.kind)) return order(a.number, b.number);
    if (a.kind == kDecimal || b.kind == kDecimal) return compareDecimals(a, b);
    if (a.kind == kDate || b.kind == kDate)
        return order(fractionOf(a, BaseType::Double), fractionOf(b, BaseType::Double));
    if (a.kind == kCurrency || b.kind == kCurrency) return order(currencyOf(a), currencyOf(b));
    // The less precise type decides, so that a Single equals the Double that it was made of.
    const bool asSingle = (a.kind == kSingle || b.kind == kSingle) && isFraction(a) && isFraction(b);
    const auto type = asSingle ? BaseType::Single : BaseType::Double;
    return order(fractionOf(a, type), fractionOf(b, type));
}

int compareTexts(Heap& heap, const Variant& a, const Variant& b, bool ignoresCase) {
    const HeldText left(heap, textOf(heap, a)), right(heap, textOf(heap, b));
    return ignoresCase ? compareNoCase(left, right) : compare(left, right);
}

bool isTyped(BaseType type) { return type != BaseType::Variant && type != BaseType::Object; }

/// A typed number beside a text: the text as this type if it is a whole one, otherwise as a Double.
int compareWithText(const Variant& number, const Variant& text, BaseType declared, bool isBothTyped) {
    const VariantKind kind = kindOf(declared);
    const auto type = isBothTyped && isWhole(kind) ? declared : BaseType::Double;
    const Variant parsed =
        type == BaseType::Double ? ofFraction(fractionOf(text, type)) : ofNumber(longOf(text, type), kind);
    return compareNumbers(number, parsed);
}

void requireComparable(const Variant& v) {
    if (v.kind != kEmpty && v.kind != kString && !isNumeric(v)) throw basic::RuntimeError(basic::kTypeMismatch);
}

int compareWithEmpty(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b) {
    if (a.kind == kString || b.kind == kString) return compareTexts(heap, a, b, word.comparesText);
    const Variant zero = ofNumber(0, kInteger);
    return compareNumbers(a.kind == kEmpty ? zero : a, b.kind == kEmpty ? zero : b);
}

} // namespace

int compareVariants(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b) {
    if (a.kind == kError && b.kind == kError) return order(a.number, b.number);
    requireComparable(a);
    requireComparable(b);
    const bool leftText = word.left == BaseType::Text, rightText = word.right == BaseType::Text;
    const bool leftNumber = isTyped(word.left) && !leftText, rightNumber = isTyped(word.right) && !rightText;
    if (a.kind == kString && b.kind == kString) return compareTexts(heap, a, b, word.comparesText);
    if (b.kind == kString && leftNumber) return compareWithText(a, b, word.left, rightText);
    if (a.kind == kString && rightNumber) return -compareWithText(b, a, word.right, leftText);
    if (leftText || rightText) return compareTexts(heap, a, b, word.comparesText);
    if (a.kind == kEmpty || b.kind == kEmpty) return compareWithEmpty(heap, word, a, b);
    // Of two Variants, a number is always less than a text.
    if (a.kind == kString || b.kind == kString) return a.kind == kString ? 1 : -1;
    return compareNumbers(a, b);
}

} // namespace tamarik
