#include "Components/Tamarik/values/number_texts.h"
#include "Basic/conversions.h"
#include "Basic/date.h"
#include "Basic/like.h"
#include "Components/Tamarik/values/encoding.h"

namespace tamarik {

using image::BaseType;

TextBlock* textOfLong(Heap& heap, std::int32_t number, BaseType type) {
    if (type == BaseType::Boolean) return makeText(heap, number != 0 ? u"True" : u"False");
    return makeTextOfUtf8(heap, basic::CStr(basic::Long{number}));
}

TextBlock* textOfFraction(Heap& heap, double number, BaseType type) {
    if (type == BaseType::Date) return makeTextOfUtf8(heap, basic::CStr(basic::Date{number}));
    return makeTextOfUtf8(heap,
                          type == BaseType::Single ? basic::CStr(static_cast<float>(number)) : basic::CStr(number));
}

TextBlock* textOfCurrency(Heap& heap, std::int64_t scaled) {
    return makeTextOfUtf8(heap, basic::CStr(basic::Currency{scaled}));
}

std::int32_t longOfText(std::u16string_view text, BaseType type) {
    const std::string utf8 = toUtf8(text);
    switch (type) {
    case BaseType::Boolean: return basic::CBool(utf8) ? -1 : 0;
    case BaseType::Byte: return basic::CByte(utf8);
    case BaseType::Integer: return basic::CInt(utf8);
    default: return basic::CLng(utf8);
    }
}

double fractionOfText(std::u16string_view text, BaseType type) {
    const std::string utf8 = toUtf8(text);
    if (type == BaseType::Date) return basic::CDate(utf8).days;
    return type == BaseType::Single ? basic::CSng(utf8) : basic::CDbl(utf8);
}

std::int64_t currencyOfText(std::u16string_view text) { return basic::CCur(toUtf8(text)).scaled; }

bool isLike(std::u16string_view text, std::u16string_view pattern, bool ignoresCase) {
    return basic::Like(toUtf8(text), toUtf8(pattern), ignoresCase ? basic::vbTextCompare : basic::vbBinaryCompare);
}

} // namespace tamarik
