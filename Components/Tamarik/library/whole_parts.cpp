// Functions of numbers whose result has the type of the argument.
#include "Basic/conversions.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/decimal_values.h"
#include <cmath>
#include <limits>

namespace tamarik {

namespace {

constexpr std::int64_t kUnit = 10000; // of a Currency
constexpr std::int32_t kMostDecimals = 22;

/// A text counts as a Double; Empty and Booleans as Integers.
Variant numberOf(const Variant& v) {
    if (v.kind == kString) return ofFraction(fractionOf(v));
    if (v.kind == kEmpty) return ofInteger(0);
    if (v.kind == kBoolean) return ofInteger(v.number);
    if (!isNumeric(v)) throw basic::RuntimeError(basic::kTypeMismatch);
    return v;
}

/// Calls the function for the representation of the number.
template <class Fraction, class Money, class Exact>
Variant mapped(const Variant& given, Fraction fraction, Money money, Exact exact) {
    if (given.kind == kNull) return null();
    Variant v = numberOf(given);
    v.flags &= Variant::kNegative;
    if (v.kind == kCurrency)
        v.currency = money(v.currency);
    else if (v.kind == kDecimal)
        v = ofDecimal(exact(decimalOf(v)));
    else if (!isWhole(v.kind))
        v.fraction = fraction(v.fraction);
    return v;
}

std::int64_t floorOf(std::int64_t money) {
    const std::int64_t rest = money % kUnit;
    if (rest >= 0) return money - rest;
    if (money < std::numeric_limits<std::int64_t>::min() + (kUnit + rest)) throw basic::RuntimeError(basic::kOverflow);
    return money - rest - kUnit;
}

Variant fix(Session&, const Variant& v) {
    return mapped(
        v, [](double number) { return std::trunc(number); }, [](std::int64_t money) { return money - money % kUnit; },
        [](const Decimal96& number) { return number.fix(); });
}

Variant integerPart(Session&, const Variant& v) {
    return mapped(
        v, [](double number) { return std::floor(number); }, floorOf,
        [](const Decimal96& number) { return number.floor(); });
}

std::int64_t sizeOfMoney(std::int64_t money) {
    if (money == std::numeric_limits<std::int64_t>::min()) throw basic::RuntimeError(basic::kOverflow);
    return money < 0 ? -money : money;
}

Variant absolute(Session&, const Variant& v) {
    Variant size = mapped(
        v, [](double number) { return std::fabs(number); }, sizeOfMoney,
        [](const Decimal96& number) { return number.isNegative() ? -number : number; });
    if (size.kind == kInteger) size.number = basic::Abs(static_cast<basic::Integer>(size.number));
    if (size.kind == kLong) size.number = basic::Abs(basic::Long{size.number});
    return size;
}

/// Halves to even.
std::int64_t roundedMoney(std::int64_t money, std::int32_t decimals) {
    if (decimals >= 4) return money;
    std::int64_t unit = 1;
    for (int i = decimals; i < 4; ++i) unit *= 10;
    const std::int64_t rest = money % unit, size = rest < 0 ? -rest : rest;
    const std::int64_t whole = money - rest;
    const bool isUp = 2 * size > unit || (2 * size == unit && (whole / unit) % 2 != 0);
    if (!isUp) return whole;
    std::int64_t result = 0;
    if (__builtin_add_overflow(whole, rest < 0 ? -unit : unit, &result)) throw basic::RuntimeError(basic::kOverflow);
    return result;
}

Variant round(Session&, const Variant& v, std::int32_t decimals) {
    requireArgument(decimals >= 0 && decimals <= kMostDecimals);
    Variant rounded = mapped(
        v, [&](double number) { return basic::Round(number, decimals); },
        [&](std::int64_t money) { return roundedMoney(money, decimals); },
        [&](const Decimal96& number) { return number.rounded(decimals); });
    if (rounded.kind == kSingle) rounded.fraction = static_cast<double>(static_cast<float>(rounded.fraction));
    return rounded;
}

Variant sign(Session&, const Variant& v) {
    if (v.kind == kNull) return null();
    const double number = fractionOf(numberOf(v), image::BaseType::Double);
    return ofInteger((number > 0) - (number < 0));
}

} // namespace

void addWholeParts(Natives& natives) {
    natives.add("Abs", native<&absolute>());
    natives.add("Fix", native<&fix>());
    natives.add("Int", native<&integerPart>());
    natives.add("Round", native<&round>());
    natives.add("Sgn", native<&sign>());
}

} // namespace tamarik
