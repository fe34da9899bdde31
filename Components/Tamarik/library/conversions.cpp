// Conversions to the types of the language. The compiler has instructions for most; these serve calls with named arguments.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/decimal_values.h"

namespace tamarik {

using image::BaseType;

namespace {

template <BaseType Type>
std::int32_t toWhole(Session&, const Variant& v) {
    return longOf(numberOfError(v), Type);
}
template <BaseType Type>
double toFraction(Session&, const Variant& v) {
    return fractionOf(numberOfError(v), Type);
}
basic::Currency toMoney(Session&, const Variant& v) { return {currencyOf(numberOfError(v))}; }
basic::Date toDay(Session& session, const Variant& v) { return dateOf(session, numberOfError(v)); }
TextBlock* toText(Session& session, const Variant& v) { return textIn(session, v); }
Variant toVariant(Session& session, const Variant& v) { return copyOf(session.heap, v); }
Variant toExact(Session&, const Variant& v) { return toDecimal(v); }

Variant toDateOrNull(Session& session, const Variant& v) {
    return v.kind == kNull ? null() : ofFraction(dateOf(session, v).days, kDate);
}

Variant toError(Session&, const Variant& v) {
    const std::int32_t number = longOf(v);
    requireArgument(number >= 0 && number <= 65535);
    return ofNumber(number, kError);
}

/// The text of an error, or of the last one.
TextBlock* errorText(Session& session, const Variant& v) {
    if (v.isMissing()) return session.err.number == 0 ? nullptr : madeOfUtf8(session, session.err.description);
    const std::int32_t number = longOf(v);
    requireArgument(number <= 65535);
    return number == 0 ? nullptr : madeOfUtf8(session, basic::standardDescription(number));
}

} // namespace

void addConversions(Natives& natives) {
    natives.add("CBool", native<&toWhole<BaseType::Boolean>>());
    natives.add("CByte", native<&toWhole<BaseType::Byte>>());
    natives.add("CInt", native<&toWhole<BaseType::Integer>>());
    natives.add("CLng", native<&toWhole<BaseType::Long>>());
    natives.add("CSng", native<&toFraction<BaseType::Single>>());
    natives.add("CDbl", native<&toFraction<BaseType::Double>>());
    natives.add("CCur", native<&toMoney>());
    natives.add("CDate", native<&toDay>());
    natives.add("CDec", native<&toExact>());
    natives.add("CStr", native<&toText>());
    natives.add("CVar", native<&toVariant>());
    natives.add("CVDate", native<&toDateOrNull>());
    natives.add("CVErr", native<&toError>());
    addPlainForms<&errorText>(natives, "Error");
}

} // namespace tamarik
