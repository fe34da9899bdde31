#pragma once
// Dates as numbers of days, and their parts. Years are 100 to 9999.
#include "Basic/types.h"
#include <cstdint>

namespace tamarik {

using basic::Date;
using basic::Double;
using basic::Integer;
using basic::Long;

/// VB's names for the days of the week; of the system means Sunday.
enum VbDayOfWeek {
    vbUseSystemDayOfWeek = 0,
    vbSunday = 1,
    vbMonday,
    vbTuesday,
    vbWednesday,
    vbThursday,
    vbFriday,
    vbSaturday
};
enum VbFirstWeekOfYear { vbUseSystem = 0, vbFirstJan1 = 1, vbFirstFourDays = 2, vbFirstFullWeek = 3 };

inline constexpr std::int64_t kSecondsOfDay = 86400;

/// Divides by a positive number, rounding down.
constexpr std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0); }

/// A date in whole days since December 30, 1899, and the second of that day.
struct Moment {
    std::int64_t day = 0;
    int second = 0;
};

struct YearMonthDay {
    int year, month, day;
};

/// Rounds to the nearest second. Error 6 for a number that is not a date.
Moment momentOf(Date date);
Date dateOf(Moment moment);

YearMonthDay partsOf(std::int64_t day);

/// The number of a day; months and days beyond their range count on from there.
std::int64_t dayOf(std::int64_t year, std::int64_t month, std::int64_t day);

/// Whether a day is in the years 100 to 9999.
bool isInRange(std::int64_t day);

/// From 1 on, counted from the first day of the week. Error 5 for a first day outside 0 to 7.
int weekdayOf(std::int64_t day, int firstDay = vbSunday);

/// From 1 on. Error 5 for a first week outside 0 to 3.
int weekOf(std::int64_t day, int firstDay, int firstWeek);

} // namespace tamarik
