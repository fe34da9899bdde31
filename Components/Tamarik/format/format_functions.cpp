#include "Components/Tamarik/format/format_functions.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/format/digits.h"
#include "Components/Tamarik/format/format.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <array>
#include <string_view>

namespace tamarik {

namespace {

std::size_t decimalsOf(const NumberStyle& style) {
    constexpr basic::Long kMost = 255;
    requireArgument(style.decimals >= -1 && style.decimals <= kMost);
    return style.decimals == -1 ? 2 : static_cast<std::size_t>(style.decimals);
}

bool is(VbTriState state, bool usual) { return state == vbUseDefault ? usual : state != vbFalse; }

std::string sizeText(const Digits& digits, const NumberStyle& style) {
    std::string text = is(style.groups, true) ? grouped(digits.whole) : digits.whole;
    if (text.empty() && (is(style.leadingDigit, true) || digits.decimals.empty())) text = "0";
    return digits.decimals.empty() ? text : text + '.' + digits.decimals;
}

/// Puts marks around a number and its sign around these. A number that is shown as 0 has no sign.
std::u16string marked(std::string_view before, const basic::Decimal& number, std::string_view after,
                      const NumberStyle& style, bool usesParentheses) {
    const Digits digits = digitsOf(number, decimalsOf(style));
    std::string text(before);
    text.append(sizeText(digits, style)).append(after);
    if (number.negative && !digits.isZero())
        text = is(style.parentheses, usesParentheses) ? '(' + text + ')' : '-' + text;
    return basic::toUtf16(text);
}

} // namespace

std::u16string FormatNumber(const basic::Decimal& number, const NumberStyle& style) {
    return marked("", number, "", style, false);
}

std::u16string FormatCurrency(const basic::Decimal& number, const NumberStyle& style) {
    return marked("$", number, "", style, true);
}

std::u16string FormatPercent(const basic::Decimal& number, const NumberStyle& style) {
    basic::Decimal percent = number;
    percent.exponent += 2;
    return marked("", percent, "%", style, false);
}

std::u16string FormatDateTime(basic::Date date, int format) {
    constexpr std::array<std::u16string_view, 5> kFormats = {u"c", u"dddddd", u"ddddd", u"ttttt", u"hh:nn"};
    requireArgument(format >= vbGeneralDate && format <= vbShortTime);
    return Format(FormatValue(date), kFormats[static_cast<std::size_t>(format)]);
}

} // namespace tamarik
