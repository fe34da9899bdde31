#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/dates/date_text.h"
#include "Components/Tamarik/values/encoding.h"
#include <cmath>

namespace tamarik {

Variant variantOfText(Session& session, std::u16string_view text) { return ofText(made(session, text)); }

basic::VbCompareMethod comparisonOf(std::int32_t number) {
    requireArgument(number == basic::vbBinaryCompare || number == basic::vbTextCompare);
    return static_cast<basic::VbCompareMethod>(number);
}

basic::Date today(Session& session) { return {std::floor(session.surroundings.now().days)}; }

basic::Date dateOf(Session& session, const Variant& v) {
    if (v.kind == kString) return CDate(unitsOf(v.text), today(session));
    return {fractionOf(v, image::BaseType::Date)};
}

TextBlock* textIn(Session& session, const Variant& v) {
    if (v.kind != (kArray | kByte)) return textOf(session.heap, v);
    return v.array ? makeText(session.heap, v.array->data, v.array->size) : nullptr;
}

std::string utf8Of(Session& session, const Variant& v) {
    const HeldText text(session.heap, textIn(session, v));
    return toUtf8(unitsOf(text));
}

} // namespace tamarik
