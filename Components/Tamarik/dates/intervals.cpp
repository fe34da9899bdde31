#include "Components/Tamarik/dates/intervals.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <algorithm>
#include <array>

namespace tamarik {

namespace {

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

constexpr std::array<std::string_view, 10> kNames = {"yyyy", "q", "m", "y", "d", "w", "ww", "h", "n", "s"};

Interval intervalNamed(std::u16string_view name) {
    const std::string ascii = basic::asciiOf(name);
    const auto found = std::find_if(kNames.begin(), kNames.end(), [&](auto n) { return basic::equalNoCase(n, ascii); });
    requireArgument(found != kNames.end());
    return static_cast<Interval>(found - kNames.begin());
}

int monthsOf(Interval interval) {
    switch (interval) {
    case Interval::Year: return 12;
    case Interval::Quarter: return 3;
    case Interval::Month: return 1;
    default: return 0;
    }
}

std::int64_t secondsOf(Interval interval) {
    switch (interval) {
    case Interval::Hour: return 3600;
    case Interval::Minute: return 60;
    case Interval::Second: return 1;
    case Interval::Week: return 7 * kSecondsOfDay;
    default: return kSecondsOfDay;
    }
}

std::int64_t secondOf(Moment moment) { return moment.day * kSecondsOfDay + moment.second; }

Moment momentAt(std::int64_t second) {
    const std::int64_t day = floorDivide(second, kSecondsOfDay);
    return {day, static_cast<int>(second - day * kSecondsOfDay)};
}

Moment addMonths(Moment moment, std::int64_t months) {
    const auto [year, month, day] = partsOf(moment.day);
    constexpr std::int64_t kMost = 12 * 10000;
    requireArgument(months > -kMost && months < kMost);
    const std::int64_t first = dayOf(year, month + months, 1), next = dayOf(year, month + months + 1, 1);
    return {std::min(first + day, next) - 1, moment.second};
}

/// The number of the month, from year 0 on.
std::int64_t monthNumber(Moment moment) {
    const auto [year, month, day] = partsOf(moment.day);
    return std::int64_t{year} * 12 + month - 1;
}

std::int64_t difference(Interval interval, Moment first, Moment second, int firstDay) {
    if (const int months = monthsOf(interval)) return monthNumber(second) / months - monthNumber(first) / months;
    switch (interval) {
    case Interval::Weekday: return (second.day - first.day) / 7;
    case Interval::Week: {
        const auto start = [&](Moment moment) { return moment.day - weekdayOf(moment.day, firstDay); };
        return (start(second) - start(first)) / 7;
    }
    default: {
        const std::int64_t seconds = secondsOf(interval);
        return floorDivide(secondOf(second), seconds) - floorDivide(secondOf(first), seconds);
    }
    }
}

std::int64_t partOf(Interval interval, Moment moment, int firstDay, int firstWeek) {
    const auto [year, month, day] = partsOf(moment.day);
    switch (interval) {
    case Interval::Year: return year;
    case Interval::Quarter: return (month + 2) / 3;
    case Interval::Month: return month;
    case Interval::DayOfYear: return moment.day - dayOf(year, 1, 1) + 1;
    case Interval::Day: return day;
    case Interval::Weekday: return weekdayOf(moment.day, firstDay);
    case Interval::Week: return weekOf(moment.day, firstDay, firstWeek);
    case Interval::Hour: return moment.second / 3600;
    case Interval::Minute: return moment.second / 60 % 60;
    case Interval::Second: return moment.second % 60;
    }
    return 0;
}

} // namespace

Date DateAdd(std::u16string_view interval, Double number, Date date) {
    const Interval unit = intervalNamed(interval);
    const std::int64_t count = basic::CLng(number);
    const Moment moment = momentOf(date);
    const int months = monthsOf(unit);
    const bool isTime = unit == Interval::Hour || unit == Interval::Minute || unit == Interval::Second;
    const Moment later = months   ? addMonths(moment, count * months)
                         : isTime ? momentAt(secondOf(moment) + count * secondsOf(unit))
                                  : Moment{moment.day + count * (secondsOf(unit) / kSecondsOfDay), moment.second};
    requireArgument(isInRange(later.day));
    return dateOf(later);
}

Long DateDiff(std::u16string_view interval, Date first, Date second, int firstDay) {
    const std::int64_t count = difference(intervalNamed(interval), momentOf(first), momentOf(second), firstDay);
    return basic::CLng(static_cast<Double>(count));
}

Integer DatePart(std::u16string_view interval, Date date, int firstDay, int firstWeek) {
    return static_cast<Integer>(partOf(intervalNamed(interval), momentOf(date), firstDay, firstWeek));
}

} // namespace tamarik
