#include "Components/Tamarik/dates/serial.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <array>
#include <string_view>

namespace tamarik {

namespace {

constexpr std::array<std::u16string_view, 12> kMonths = {u"January",   u"February", u"March",    u"April",
                                                         u"May",       u"June",     u"July",     u"August",
                                                         u"September", u"October",  u"November", u"December"};
constexpr std::array<std::u16string_view, 7> kDays = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                                      u"Thursday", u"Friday", u"Saturday"};
constexpr std::size_t kAbbreviated = 3;

std::u16string named(std::u16string_view name, bool abbreviate) {
    return std::u16string(abbreviate ? name.substr(0, kAbbreviated) : name);
}

} // namespace

Date DateSerial(Integer year, Integer month, Integer day) {
    requireArgument(year >= 0 && year <= 9999);
    const int full = year < 30 ? year + 2000 : year < 100 ? year + 1900 : year;
    const std::int64_t number = dayOf(full, month, day);
    requireArgument(isInRange(number));
    return dateOf({number, 0});
}

Date TimeSerial(Integer hour, Integer minute, Integer second) {
    return {(Long{hour} * 3600 + Long{minute} * 60 + second) / Double{kSecondsOfDay}};
}

Integer Year(Date date) { return static_cast<Integer>(partsOf(momentOf(date).day).year); }
Integer Month(Date date) { return static_cast<Integer>(partsOf(momentOf(date).day).month); }
Integer Day(Date date) { return static_cast<Integer>(partsOf(momentOf(date).day).day); }
Integer Hour(Date date) { return static_cast<Integer>(momentOf(date).second / 3600); }
Integer Minute(Date date) { return static_cast<Integer>(momentOf(date).second / 60 % 60); }
Integer Second(Date date) { return static_cast<Integer>(momentOf(date).second % 60); }

Integer Weekday(Date date, int firstDay) { return static_cast<Integer>(weekdayOf(momentOf(date).day, firstDay)); }

std::u16string MonthName(Long month, bool abbreviate) {
    requireArgument(month >= 1 && month <= 12);
    return named(kMonths[static_cast<std::size_t>(month - 1)], abbreviate);
}

std::u16string WeekdayName(Long weekday, bool abbreviate, int firstDay) {
    requireArgument(weekday >= 1 && weekday <= 7 && firstDay >= vbUseSystemDayOfWeek && firstDay <= vbSaturday);
    if (firstDay == vbUseSystemDayOfWeek) firstDay = vbSunday;
    return named(kDays[static_cast<std::size_t>((weekday + firstDay - 2) % 7)], abbreviate);
}

} // namespace tamarik
