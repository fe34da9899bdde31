#include "Basic/date.h"
#include "Components/Tamarik/dates/date_text.h"
#include "Components/Tamarik/dates/intervals.h"
#include "Components/Tamarik/dates/serial.h"
#include "tests/tamarik/error_of.h"
#include <gtest/gtest.h>

using namespace tamarik;
using test::errorOf;

namespace {

const Date kToday = basic::CDate("6/15/2004");

Date on(std::string_view text) { return basic::CDate(text, kToday); }

std::string added(std::u16string_view interval, Double number, std::string_view date) {
    return basic::CStr(DateAdd(interval, number, on(date)));
}

} // namespace

TEST(TamarikDates, DateAddKeepsTheMonthAndTheTime) {
    EXPECT_EQ(added(u"m", 1, "31-Jan-95"), "2/28/1995");
    EXPECT_EQ(added(u"m", 1, "31-Jan-96"), "2/29/1996");
    EXPECT_EQ(added(u"m", -13, "3/31/2001 6:00 AM"), "2/29/2000 6:00:00 AM");
    EXPECT_EQ(added(u"yyyy", 1, "2/29/2000"), "2/28/2001");
    EXPECT_EQ(added(u"Q", 2, "8/31/2003"), "2/29/2004");
    for (const auto* const days : {u"d", u"y", u"w"}) EXPECT_EQ(added(days, -1, "3/1/2000"), "2/29/2000");
    EXPECT_EQ(added(u"ww", 2, "12/25/2003"), "1/8/2004");
    EXPECT_EQ(added(u"h", 25, "12/31/2003 11:30 PM"), "1/2/2004 12:30:00 AM");
    EXPECT_EQ(added(u"n", -1, "1/1/1900"), "12/31/1899 11:59:00 PM");
    EXPECT_EQ(added(u"s", -1, "12/30/1899"), "12/29/1899 11:59:59 PM");
    EXPECT_EQ(added(u"d", 1.5, "1/1/2000"), "1/3/2000");
}

TEST(TamarikDates, DateAddRefusesUnknownIntervalsAndYears) {
    EXPECT_EQ(errorOf([] { DateAdd(u"x", 1, kToday); }), 5);
    EXPECT_EQ(errorOf([] { DateAdd(u"", 1, kToday); }), 5);
    EXPECT_EQ(errorOf([] { DateAdd(u"yyyy", -1905, kToday); }), 5);
    EXPECT_EQ(errorOf([] { DateAdd(u"yyyy", 2147483647, kToday); }), 5);
    EXPECT_EQ(errorOf([] { DateAdd(u"ww", -2147483648.0, kToday); }), 5);
    EXPECT_EQ(errorOf([] { DateAdd(u"s", 1e10, kToday); }), 6);
}

TEST(TamarikDates, DateDiffCountsBoundaries) {
    EXPECT_EQ(DateDiff(u"yyyy", on("12/31/2003"), on("1/1/2004")), 1);
    EXPECT_EQ(DateDiff(u"q", on("3/31/2004"), on("4/1/2004")), 1);
    EXPECT_EQ(DateDiff(u"m", on("1/31/2004"), on("2/1/2004")), 1);
    EXPECT_EQ(DateDiff(u"m", on("2/1/2004"), on("1/31/2003")), -13);
    EXPECT_EQ(DateDiff(u"d", on("1/1/2004 11:59 PM"), on("1/2/2004")), 1);
    EXPECT_EQ(DateDiff(u"y", on("1/2/2004"), on("1/1/2004 11:59 PM")), -1);
    EXPECT_EQ(DateDiff(u"h", on("1:59"), on("2:01")), 1);
    EXPECT_EQ(DateDiff(u"h", on("12/29/1899 11:30 PM"), on("12/30/1899 12:30 AM")), 1);
    EXPECT_EQ(DateDiff(u"n", on("1:00:59"), on("1:01:00")), 1);
    EXPECT_EQ(DateDiff(u"s", on("1/1/2000"), on("1/2/2000")), 86400);
    EXPECT_EQ(errorOf([] { DateDiff(u"s", on("1/1/1900"), on("1/1/2000")); }), 6);
}

TEST(TamarikDates, DateDiffCountsWeeksInTwoWays) {
    // January 4, 2004 was a Sunday.
    EXPECT_EQ(DateDiff(u"ww", on("1/3/2004"), on("1/4/2004")), 1);
    EXPECT_EQ(DateDiff(u"ww", on("1/4/2004"), on("1/10/2004")), 0);
    EXPECT_EQ(DateDiff(u"ww", on("1/4/2004"), on("1/11/2004")), 1);
    EXPECT_EQ(DateDiff(u"ww", on("1/4/2004"), on("1/5/2004"), vbMonday), 1);
    EXPECT_EQ(DateDiff(u"ww", on("1/5/2004"), on("1/3/2004")), -1);
    EXPECT_EQ(DateDiff(u"w", on("1/3/2004"), on("1/4/2004")), 0);
    EXPECT_EQ(DateDiff(u"w", on("1/5/2004"), on("1/19/2004")), 2);
    EXPECT_EQ(DateDiff(u"w", on("1/19/2004"), on("1/6/2004")), -1);
}

TEST(TamarikDates, DatePartReturnsEachPart) {
    const Date date = on("2/29/2004 1:02:03 PM");
    const std::pair<const char16_t*, int> parts[] = {{u"yyyy", 2004}, {u"q", 1},   {u"m", 2},  {u"y", 60}, {u"d", 29},
                                                     {u"w", 1},       {u"ww", 10}, {u"h", 13}, {u"n", 2},  {u"s", 3}};
    for (const auto& [interval, part] : parts) EXPECT_EQ(DatePart(interval, date), part);
    EXPECT_EQ(DatePart(u"w", date, vbMonday), 7);
    EXPECT_EQ(errorOf([&] { DatePart(u"w", date, 8); }), 5);
    EXPECT_EQ(errorOf([&] { DatePart(u"ww", date, 1, 4); }), 5);
}

TEST(TamarikDates, WeeksFollowTheirFirstWeek) {
    EXPECT_EQ(DatePart(u"ww", on("1/1/2005")), 1);
    EXPECT_EQ(DatePart(u"ww", on("1/2/2005")), 2);
    EXPECT_EQ(DatePart(u"ww", on("12/31/2005")), 53);
    EXPECT_EQ(DatePart(u"ww", on("12/31/2000")), 54);
    // The weeks of ISO 8601 start on Monday, the first one with January 4.
    EXPECT_EQ(DatePart(u"ww", on("1/1/2005"), vbMonday, vbFirstFourDays), 53);
    EXPECT_EQ(DatePart(u"ww", on("1/1/2010"), vbMonday, vbFirstFourDays), 53);
    EXPECT_EQ(DatePart(u"ww", on("1/1/2004"), vbMonday, vbFirstFourDays), 1);
    EXPECT_EQ(DatePart(u"ww", on("12/29/2003"), vbMonday, vbFirstFourDays), 1);
    EXPECT_EQ(DatePart(u"ww", on("1/4/2004"), vbMonday, vbFirstFourDays), 1);
    EXPECT_EQ(DatePart(u"ww", on("1/1/2005"), vbSunday, vbFirstFullWeek), 52);
    EXPECT_EQ(DatePart(u"ww", on("1/2/2005"), vbSunday, vbFirstFullWeek), 1);
}

TEST(TamarikDates, SerialsCountOnBeyondTheirRanges) {
    EXPECT_EQ(basic::CStr(DateSerial(1969, 2, 12)), "2/12/1969");
    EXPECT_EQ(basic::CStr(DateSerial(1980, 8 - 2, 1 - 1)), "5/31/1980");
    EXPECT_EQ(basic::CStr(DateSerial(29, 1, 1)), "1/1/2029");
    EXPECT_EQ(basic::CStr(DateSerial(30, 1, 1)), "1/1/1930");
    EXPECT_EQ(basic::CStr(DateSerial(0, 0, 0)), "11/30/1999");
    EXPECT_EQ(basic::CStr(DateSerial(2004, 14, 35)), "3/7/2005");
}

TEST(TamarikDates, SerialsRefuseYearsThatDatesLack) {
    EXPECT_EQ(errorOf([] { DateSerial(2004, -32768, 1); }), 5);
    EXPECT_EQ(errorOf([] { DateSerial(100, 1, 0); }), 5);
    EXPECT_EQ(errorOf([] { DateSerial(9999, 12, 32); }), 5);
    EXPECT_EQ(errorOf([] { DateSerial(-1, 1, 1); }), 5);
    EXPECT_EQ(errorOf([] { DateSerial(10000, 1, 1); }), 5);
    EXPECT_EQ(DateSerial(100, 1, 1).days, -657434);
    EXPECT_EQ(DateSerial(9999, 12, 31).days, 2958465);
}

TEST(TamarikDates, TimesHaveParts) {
    EXPECT_EQ(basic::CStr(TimeSerial(16, 35, 17)), "4:35:17 PM");
    EXPECT_EQ(basic::CStr(TimeSerial(12 - 6, -15, 0)), "5:45:00 AM");
    EXPECT_EQ(basic::CStr(TimeSerial(0, 75, 0)), "1:15:00 AM");
    EXPECT_EQ(TimeSerial(36, 0, 0).days, 1.5);
    const Date date = on("1/5/2003 4:35:17 PM");
    EXPECT_EQ(Year(date), 2003);
    EXPECT_EQ(Month(date), 1);
    EXPECT_EQ(tamarik::Day(date), 5);
    EXPECT_EQ(Hour(date), 16);
    EXPECT_EQ(Minute(date), 35);
    EXPECT_EQ(Second(date), 17);
    EXPECT_EQ(Weekday(date), 1);
    EXPECT_EQ(Weekday(date, vbMonday), 7);
    EXPECT_EQ(Hour(Date{-1.25}), 6);
    EXPECT_EQ(tamarik::Day(Date{37626.999999}), 6); // rounds up to midnight
}

TEST(TamarikDates, NamesAreEnglish) {
    EXPECT_EQ(MonthName(9), u"September");
    EXPECT_EQ(MonthName(9, true), u"Sep");
    EXPECT_EQ(WeekdayName(1), u"Sunday");
    EXPECT_EQ(WeekdayName(1, true, vbMonday), u"Mon");
    EXPECT_EQ(WeekdayName(7, false, vbMonday), u"Sunday");
    EXPECT_EQ(errorOf([] { MonthName(0); }), 5);
    EXPECT_EQ(errorOf([] { MonthName(13); }), 5);
    EXPECT_EQ(errorOf([] { WeekdayName(8); }), 5);
    EXPECT_EQ(errorOf([] { WeekdayName(1, false, 8); }), 5);
}

TEST(TamarikDates, TextsMayLackTheYear) {
    const std::pair<const char16_t*, const char*> rows[] = {
        {u"1/5", "1/5/2004"},
        {u"25/12", "12/25/2004"},
        {u"Jan 5", "1/5/2004"},
        {u"5 January", "1/5/2004"},
        {u"5-Jan", "1/5/2004"},
        {u"Jan-5-2003", "1/5/2003"},
        {u"1/2003", "1/1/2003"},
        {u"2003/4", "4/1/2003"},
        {u"Jan 2003", "1/1/2003"},
        {u"2/30", "2/1/1930"},
        {u"Jan 5 3:00 PM", "1/5/2004 3:00:00 PM"},
        {u"2/29", "2/29/2004"},
    };
    for (const auto& [text, date] : rows) EXPECT_EQ(basic::CStr(CDate(text, kToday)), date);
    EXPECT_EQ(errorOf([] { CDate(u"2/29", on("1/1/2003")); }), 13);
    EXPECT_EQ(errorOf([] { basic::CDate("1/5"); }), 13);
    for (const auto* const bad : {u"", u"5", u"1/", u"1/5/", u"Jan", u"13/13", u"Sunday, January 05, 2003", u"１/５"})
        EXPECT_FALSE(IsDate(bad));
}

TEST(TamarikDates, ValuesAreThePartsOfATextWithBoth) {
    EXPECT_EQ(DateValue(u"1/5/2003 3:00 PM", kToday).days, 37626);
    EXPECT_EQ(DateValue(u"3:00 PM", kToday).days, 0);
    EXPECT_EQ(TimeValue(u"1/5/2003 6:00 PM").days, 0.75);
    EXPECT_EQ(TimeValue(u"12/29/1899 6:00 AM").days, 0.25);
    EXPECT_TRUE(IsDate(u"4:35:17 PM"));
    EXPECT_TRUE(IsDate(u"2/29"));
    EXPECT_FALSE(IsDate(u"2/29/2003"));
    EXPECT_EQ(errorOf([] { DateValue(u"x", kToday); }), 13);
}
