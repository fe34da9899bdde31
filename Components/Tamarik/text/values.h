#pragma once
// Numbers in texts, over Basic's conversions. Qualify calls with a Currency or Date, for which lookup also finds Basic's.
#include "Basic/conversions.h"
#include "Basic/date.h"
#include "Basic/number_text.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/numbers/decimal96.h"
#include <string>
#include <string_view>

namespace tamarik {

/// The texts of VB's values, as basic::CStr.
template <class Value>
std::u16string CStr(Value value) {
    return basic::toUtf16(basic::CStr(value));
}

inline std::u16string CStr(const Decimal96& number) { return basic::toUtf16(number.text()); }

template <class Number>
std::u16string Str(Number number) {
    return basic::toUtf16(basic::Str(number));
}

template <class Number>
std::u16string Hex(Number number) {
    return basic::toUtf16(basic::Hex(number));
}

template <class Number>
std::u16string Oct(Number number) {
    return basic::toUtf16(basic::Oct(number));
}

/// With a blank instead of a positive sign and without a zero before the point.
std::u16string Str(const Decimal96& number);

inline basic::Double Val(std::u16string_view text) { return basic::Val(basic::asciiOf(text)); }
inline bool IsNumeric(std::u16string_view text) { return basic::IsNumeric(basic::asciiOf(text)); }

// With the errors of Basic's conversions.
inline Decimal96 CDec(std::u16string_view text) { return Decimal96::parse(basic::asciiOf(text)); }

} // namespace tamarik
