// Format and its relatives.
#include "Components/Tamarik/format/format.h"
#include "Components/Tamarik/format/format_functions.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/decimal_values.h"

namespace tamarik {

namespace {

FormatValue formatValueOf(const Variant& v) {
    switch (v.kind) {
    case kEmpty: return FormatValue(std::u16string_view());
    case kNull: return {};
    case kBoolean: return FormatValue(v.number != 0);
    case kByte:
    case kInteger:
    case kLong: return FormatValue(basic::Long{v.number});
    case kSingle: return FormatValue(static_cast<basic::Single>(v.fraction));
    case kDouble: return FormatValue(v.fraction);
    case kDate: return FormatValue(basic::Date{v.fraction});
    case kCurrency: return FormatValue(basic::Currency{v.currency});
    case kDecimal: return FormatValue(decimalOf(v));
    case kString: return FormatValue(unitsOf(v.text));
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

TextBlock* format(Session& session, const Variant& v, const Variant& by, std::int32_t firstDay,
                  std::int32_t firstWeek) {
    const HeldText code(session.heap, by.isMissing() ? nullptr : textIn(session, by));
    return made(session, Format(formatValueOf(v), unitsOf(code), {firstDay, firstWeek}, today(session)));
}

Variant formatOrNull(Session& session, const Variant& v, const Variant& by, std::int32_t firstDay,
                     std::int32_t firstWeek) {
    const bool isPlain = by.isMissing() || (by.kind == kString && !by.text);
    if (v.kind == kNull && isPlain) return null();
    return ofText(format(session, v, by, firstDay, firstWeek));
}

basic::Decimal decimalNumber(const Variant& v) {
    if (v.kind == kNull) throw basic::RuntimeError(basic::kInvalidUseOfNull);
    const auto number = v.kind == kEmpty ? FormatValue(basic::Long{0}).number() : formatValueOf(v).number();
    if (!number) throw basic::RuntimeError(basic::kTypeMismatch);
    return *number;
}

VbTriState stateOf(std::int32_t number) {
    requireArgument(number == vbUseDefault || number == vbTrue || number == vbFalse);
    return static_cast<VbTriState>(number);
}

template <std::u16string (*F)(const basic::Decimal&, const NumberStyle&)>
TextBlock* formatNumberBy(Session& session, const Variant& v, std::int32_t decimals, std::int32_t leading,
                          std::int32_t parentheses, std::int32_t groups) {
    return made(session, F(decimalNumber(v), {decimals, stateOf(leading), stateOf(parentheses), stateOf(groups)}));
}

TextBlock* formatDateTime(Session& session, const Variant& v, std::int32_t by) {
    return made(session, FormatDateTime(dateOf(session, v), by));
}

} // namespace

void addFormats(Natives& natives) {
    natives.add("Format", native<&formatOrNull>());
    natives.add("Format$", native<&format>());
    natives.add("FormatNumber", native<&formatNumberBy<&FormatNumber>>());
    natives.add("FormatCurrency", native<&formatNumberBy<&FormatCurrency>>());
    natives.add("FormatPercent", native<&formatNumberBy<&FormatPercent>>());
    natives.add("FormatDateTime", native<&formatDateTime>());
}

} // namespace tamarik
