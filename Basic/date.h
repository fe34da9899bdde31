#pragma once
// VB's dates as texts of en-US.
#include "Basic/conversions.h"
#include <string>
#include <string_view>

namespace basic {

/// A date from a number of days (error 6 outside the years 100 to 9999) or from a text (error 13 for one that is no
/// date or no time): month/day/year with "/" or "-", day first where the month can't be one, year-month-day with a
/// year of four digits, "January 5, 2003" and "5 Jan 2003"; before or behind it, or alone, 15:30, 15:30:05 or 3:30 PM.
/// Years 0 to 29 are of this century, 30 to 99 of the last. A date without its year is error 13: VB takes the current
/// year, this library knows no clock.
Date CDate(const Convertible& value);

/// As "1/5/2003 3:04:05 PM", without the time at midnight and without the date on day 0. Error 6 outside the years.
std::string CStr(Date date);

} // namespace basic
