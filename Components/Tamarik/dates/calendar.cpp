#include "Components/Tamarik/dates/calendar.h"
#include "Basic/date.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <chrono>
#include <cmath>

namespace tamarik {

namespace {

using namespace std::chrono;

constexpr sys_days kDayZero = sys_days(year(1899) / 12 / 30);
constexpr std::int64_t kFirstDay = -657434, kLastDay = 2958465;

/// The first day of the year's first week.
std::int64_t firstWeekOf(int year, int firstDay, int firstWeek) {
    const std::int64_t january1 = dayOf(year, 1, 1);
    const int before = weekdayOf(january1, firstDay) - 1; // the days of its week that are in the year before
    const int most = firstWeek == vbFirstFullWeek ? 0 : firstWeek == vbFirstFourDays ? 3 : 6;
    return january1 - before + (before > most ? 7 : 0);
}

} // namespace

Moment momentOf(Date date) {
    const Double days = basic::CDate(date).days, whole = std::trunc(days);
    Moment moment{static_cast<std::int64_t>(whole),
                  static_cast<int>(std::lround(std::abs(days - whole) * kSecondsOfDay))};
    if (moment.second == kSecondsOfDay) moment = {moment.day + 1, 0};
    return moment;
}

Date dateOf(Moment moment) {
    const auto day = static_cast<Double>(moment.day), time = static_cast<Double>(moment.second) / kSecondsOfDay;
    return {day < 0 ? day - time : day + time};
}

YearMonthDay partsOf(std::int64_t day) {
    const year_month_day date{kDayZero + days(day)};
    return {int(date.year()), static_cast<int>(unsigned(date.month())), static_cast<int>(unsigned(date.day()))};
}

std::int64_t dayOf(std::int64_t year, std::int64_t month, std::int64_t day) {
    const std::int64_t years = floorDivide(month - 1, 12);
    const auto first = std::chrono::year(static_cast<int>(year + years)) /
                       std::chrono::month(static_cast<unsigned>(month - years * 12)) / 1;
    return (sys_days(first) - kDayZero).count() + day - 1;
}

bool isInRange(std::int64_t day) { return day >= kFirstDay && day <= kLastDay; }

int weekdayOf(std::int64_t day, int firstDay) {
    requireArgument(firstDay >= vbUseSystemDayOfWeek && firstDay <= vbSaturday);
    if (firstDay == vbUseSystemDayOfWeek) firstDay = vbSunday;
    // Day 0 was a Saturday.
    const std::int64_t sinceFirst = day + 7 - firstDay;
    return static_cast<int>(sinceFirst - floorDivide(sinceFirst, 7) * 7) + 1;
}

int weekOf(std::int64_t day, int firstDay, int firstWeek) {
    requireArgument(firstWeek >= vbUseSystem && firstWeek <= vbFirstFullWeek);
    const int year = partsOf(day).year;
    std::int64_t first = firstWeekOf(year, firstDay, firstWeek);
    if (day < first) first = firstWeekOf(year - 1, firstDay, firstWeek);
    // With vbFirstJan1 the last days of December keep their week.
    const bool isNext = firstWeek == vbFirstFourDays && day >= firstWeekOf(year + 1, firstDay, firstWeek);
    return isNext ? 1 : static_cast<int>((day - first) / 7) + 1;
}

} // namespace tamarik
