// The module DateTime.
#include "Basic/date.h"
#include "Components/Tamarik/dates/date_text.h"
#include "Components/Tamarik/dates/intervals.h"
#include "Components/Tamarik/dates/serial.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include <algorithm>
#include <cmath>
#include <string>

namespace tamarik {

namespace {

Variant ofDate(basic::Date date) { return ofFraction(date.days, kDate); }

Variant now(Session& session) { return ofDate(dateOf(momentOf(session.surroundings.now()))); }
Variant date(Session& session) { return ofDate(today(session)); }

basic::Date timeOfDay(Session& session) {
    Moment moment = momentOf(session.surroundings.now());
    moment.day = 0;
    return dateOf(moment);
}
Variant time(Session& session) { return ofDate(timeOfDay(session)); }

std::string digits(int number, std::size_t width) {
    const std::string text = std::to_string(number);
    return std::string(width - std::min(width, text.size()), '0') + text;
}

TextBlock* dateText(Session& session) {
    const auto [year, month, day] = partsOf(momentOf(session.surroundings.now()).day);
    return madeOfUtf8(session, digits(month, 2) + "-" + digits(day, 2) + "-" + digits(year, 4));
}

TextBlock* timeText(Session& session) {
    const int second = momentOf(session.surroundings.now()).second;
    return madeOfUtf8(session,
                      digits(second / 3600, 2) + ":" + digits(second / 60 % 60, 2) + ":" + digits(second % 60, 2));
}

double timer(Session& session) {
    const double days = session.surroundings.now().days;
    return static_cast<double>(static_cast<float>((days - std::floor(days)) * kSecondsOfDay));
}

/// The calendar is the Gregorian one.
std::int32_t calendar(Session&) { return 0; }

Variant dateAdd(Session& session, std::u16string_view interval, double number, const Variant& from) {
    return from.kind == kNull ? null() : ofDate(DateAdd(interval, number, dateOf(session, from)));
}

Variant dateDiff(Session& session, std::u16string_view interval, const Variant& first, const Variant& second,
                 std::int32_t firstDay, std::int32_t) {
    if (first.kind == kNull || second.kind == kNull) return null();
    return ofNumber(DateDiff(interval, dateOf(session, first), dateOf(session, second), firstDay));
}

Variant datePart(Session& session, std::u16string_view interval, const Variant& of, std::int32_t firstDay,
                 std::int32_t firstWeek) {
    if (of.kind == kNull) return null();
    return ofInteger(DatePart(interval, dateOf(session, of), firstDay, firstWeek));
}

Variant dateSerial(Session&, std::int32_t year, std::int32_t month, std::int32_t day) {
    return ofDate(DateSerial(static_cast<basic::Integer>(year), static_cast<basic::Integer>(month),
                             static_cast<basic::Integer>(day)));
}

Variant timeSerial(Session&, std::int32_t hour, std::int32_t minute, std::int32_t second) {
    return ofDate(TimeSerial(static_cast<basic::Integer>(hour), static_cast<basic::Integer>(minute),
                             static_cast<basic::Integer>(second)));
}

Variant dateValue(Session& session, std::u16string_view text) { return ofDate(DateValue(text, today(session))); }
Variant timeValue(Session&, std::u16string_view text) { return ofDate(TimeValue(text)); }

template <basic::Integer (*F)(basic::Date)>
Variant part(Session& session, const Variant& of) {
    return of.kind == kNull ? null() : ofInteger(F(dateOf(session, of)));
}

Variant weekday(Session& session, const Variant& of, std::int32_t firstDay) {
    return of.kind == kNull ? null() : ofInteger(Weekday(dateOf(session, of), firstDay));
}

TextBlock* monthName(Session& session, std::int32_t month, bool abbreviate) {
    return made(session, MonthName(month, abbreviate));
}

TextBlock* weekdayName(Session& session, std::int32_t day, bool abbreviate, std::int32_t firstDay) {
    return made(session, WeekdayName(day, abbreviate, firstDay));
}

void addParts(Natives& natives) {
    natives.add("Year", native<&part<&Year>>());
    natives.add("Month", native<&part<&Month>>());
    natives.add("Day", native<&part<&Day>>());
    natives.add("Hour", native<&part<&Hour>>());
    natives.add("Minute", native<&part<&Minute>>());
    natives.add("Second", native<&part<&Second>>());
    natives.add("Weekday", native<&weekday>());
    natives.add("MonthName", native<&monthName>());
    natives.add("WeekdayName", native<&weekdayName>());
}

void addClock(Natives& natives) {
    natives.add("Now", native<&now>());
    natives.add("Date", native<&date>());
    natives.add("Date$", native<&dateText>());
    natives.add("Time", native<&time>());
    natives.add("Time$", native<&timeText>());
    natives.add("Timer", native<&timer>());
    natives.add("Calendar", native<&calendar>());
}

} // namespace

void addDates(Natives& natives) {
    addClock(natives);
    addParts(natives);
    natives.add("DateAdd", native<&dateAdd>());
    natives.add("DateDiff", native<&dateDiff>());
    natives.add("DatePart", native<&datePart>());
    natives.add("DateSerial", native<&dateSerial>());
    natives.add("TimeSerial", native<&timeSerial>());
    natives.add("DateValue", native<&dateValue>());
    natives.add("TimeValue", native<&timeValue>());
}

} // namespace tamarik
