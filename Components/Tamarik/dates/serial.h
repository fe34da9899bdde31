#pragma once
// Dates and times from their parts, and their parts.
#include "Components/Tamarik/dates/calendar.h"
#include <string>

namespace tamarik {

/// Years 0 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999. Months and days beyond their range count on from there.
/// Error 5 for a result outside the years 100 to 9999.
Date DateSerial(Integer year, Integer month, Integer day);

/// Parts beyond their range count on from there, also into other days.
Date TimeSerial(Integer hour, Integer minute, Integer second);

Integer Year(Date date);
Integer Month(Date date);
Integer Day(Date date);
Integer Hour(Date date);
Integer Minute(Date date);
Integer Second(Date date);

/// From 1 on, counted from the first day of the week.
Integer Weekday(Date date, int firstDay = vbSunday);

/// The English names, or their first three letters. Error 5 for a number outside 1 to 12 and 1 to 7.
std::u16string MonthName(Long month, bool abbreviate = false);
std::u16string WeekdayName(Long weekday, bool abbreviate = false, int firstDay = vbSunday);

} // namespace tamarik
