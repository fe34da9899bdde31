#include "Components/Tamarik/dates/date_text.h"
#include "Basic/date.h"
#include "Basic/runtime_error.h"
#include "Basic/utf16.h"
#include <cmath>

namespace tamarik {

namespace {

constexpr Date kAnyLeapYear = {36526}; // 2000

} // namespace

Date CDate(std::u16string_view text, Date today) { return basic::CDate(basic::asciiOf(text), today); }

Date DateValue(std::u16string_view text, Date today) { return {std::trunc(CDate(text, today).days)}; }

Date TimeValue(std::u16string_view text) {
    const Double days = CDate(text, kAnyLeapYear).days;
    return {std::abs(days - std::trunc(days))};
}

bool IsDate(std::u16string_view text) {
    return basic::attempt([&] { CDate(text, kAnyLeapYear); }).Number == 0;
}

} // namespace tamarik
