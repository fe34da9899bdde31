#pragma once
// Conversion between VB's dates and en-US texts.
#include "Basic/conversions.h"
#include <optional>
#include <string>
#include <string_view>

namespace basic {

/// Converts a number of days (error 6 outside the years 100 to 9999) or a text (error 13 if it is not a date or time):
/// month/day/year with "/" or "-", day first if the month would be invalid, year-month-day with a four-digit year,
/// "January 5, 2003" and "5 Jan 2003"; before or after it, or alone, a time: 15:30, 15:30:05 or 3:30 PM.
/// Years 0 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999. A date without a year ("1/5", "Jan 5") is in the year of
/// `today`, and error 13 without it, because this library has no clock. A month with a year ("1/2003") is its first day.
Date CDate(const Convertible& value, std::optional<Date> today = std::nullopt);

/// Formats as "1/5/2003 3:04:05 PM", without the time at midnight and the date on day 0. Error 6 as above.
std::string CStr(Date date);

} // namespace basic
