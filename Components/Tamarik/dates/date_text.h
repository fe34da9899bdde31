#pragma once
// Dates in texts.
#include "Components/Tamarik/dates/calendar.h"
#include <string_view>

namespace tamarik {

/// Reads a date, a time or both, see basic::CDate. Dates without a year are in that of `today`. Error 13.
Date CDate(std::u16string_view text, Date today);

/// The date without its time, and the time without its date. Error 13.
Date DateValue(std::u16string_view text, Date today);
Date TimeValue(std::u16string_view text);

bool IsDate(std::u16string_view text);

} // namespace tamarik
