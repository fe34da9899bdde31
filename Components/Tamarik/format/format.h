#pragma once
// VB's Format.
#include "Components/Tamarik/format/date_picture.h"
#include "Components/Tamarik/format/format_value.h"
#include <string>
#include <string_view>

namespace tamarik {

/// Formats a value with a named or user-defined format, or as CStr without one. Names ignore case. A text that is not what
/// the format is for is returned as it is; dates without a year in texts are in that of `today`. Error 6 for a number that
/// is not a date in a format for dates.
std::u16string Format(const FormatValue& value, std::u16string_view format = {}, WeekRules rules = {},
                      Date today = Date{});

} // namespace tamarik
