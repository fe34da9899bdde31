#pragma once
// VB's functions for intervals of time. Their names are "yyyy", "q", "m", "y", "d", "w", "ww", "h", "n" and "s", in any case;
// others are error 5.
#include "Components/Tamarik/dates/calendar.h"
#include <string_view>

namespace tamarik {

/// Adds intervals, of which the number is rounded to a whole one. The day is at most the last one of the month. Error 5 for
/// a result outside the years 100 to 9999.
Date DateAdd(std::u16string_view interval, Double number, Date date);

/// Counts the boundaries of intervals that are after the first and not after the second date; "w" counts whole weeks, "ww"
/// the first days of weeks. Negative if the second date is earlier. Error 6 for an overflow.
Long DateDiff(std::u16string_view interval, Date first, Date second, int firstDay = vbSunday);

Integer DatePart(std::u16string_view interval, Date date, int firstDay = vbSunday, int firstWeek = vbFirstJan1);

} // namespace tamarik
