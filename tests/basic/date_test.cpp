#include "Basic/date.h"
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>
#include <limits>

using namespace basic;

TEST(Dates, AreParsedAndFormatted) {
    struct Row {
        std::string text, written;
        double days;
    };
    const Row rows[] = {
        {"1/5/2003", "1/5/2003", 37626},
        {"01-05-2003", "1/5/2003", 37626},
        {" 1 / 5 / 03 ", "1/5/2003", 37626},
        {"25/12/2003", "12/25/2003", 37980},
        {"2003-12-25", "12/25/2003", 37980},
        {"2003/12/25", "12/25/2003", 37980},
        {"January 5, 2003", "1/5/2003", 37626},
        {"jan 5 2003", "1/5/2003", 37626},
        {"5 Jan 2003", "1/5/2003", 37626},
        {"5-JAN-03", "1/5/2003", 37626},
        {"1/1/29", "1/1/2029", 47119},
        {"1/1/30", "1/1/1930", 10959},
        {"2/29/2000", "2/29/2000", 36585},
        {"12/30/1899", "12:00:00 AM", 0},
        {"1/1/100", "1/1/100", -657434},
        {"12/31/9999", "12/31/9999", 2958465},
        {"12:00", "12:00:00 PM", 0.5},
        {"0:00", "12:00:00 AM", 0},
        {"6 PM", "6:00:00 PM", 0.75},
        {"12 am", "12:00:00 AM", 0},
        {"12:00:00 PM", "12:00:00 PM", 0.5},
        {"1/5/2003 6:00 PM", "1/5/2003 6:00:00 PM", 37626.75},
        {"18:00 1/5/2003", "1/5/2003 6:00:00 PM", 37626.75},
        {"12/29/1899 6:00 AM", "12/29/1899 6:00:00 AM", -1.25},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(CDate(row.text).days, row.days);
        EXPECT_EQ(CStr(Date{row.days}), row.written);
    }
    EXPECT_EQ(CStr(CDate("1/5/2003 11:59:58 PM")), "1/5/2003 11:59:58 PM");
    EXPECT_EQ(CStr(Date{37626.9999999}), "1/6/2003");
    EXPECT_EQ(CLng(CDate("1/5/2003")), 37626);
}

TEST(Dates, EachMonthIsReadByItsNameOrThreeLetters) {
    const std::string months[] = {"January", "February", "March",     "April",   "May",      "June",
                                  "July",    "August",   "September", "October", "November", "December"};
    int number = 0;
    for (const auto& month : months) {
        const auto date = std::to_string(++number) + "/5/1999";
        EXPECT_EQ(CStr(CDate(month + " 5, 1999")), date);
        EXPECT_EQ(CStr(CDate("5-" + month.substr(0, 3) + "-1999")), date);
        EXPECT_EQ(attempt([&] { CDate(month.substr(0, 2) + " 5, 1999"); }).Number, 13) << month;
    }
}

TEST(Dates, OtherTextsAreError13) {
    for (const std::string bad : {"",           " ",           "abc",
                                  "1",          "37626",       "1/5",
                                  "13/13/2003", "2/29/2003",   "2/30/2000",
                                  "0/1/2003",   "1/0/2003",    "1/5-2003",
                                  "1/1/99999",  "24:00",       "1:60",
                                  "1:00:60",    "13 PM",       "1/5/2003 1/5/2003",
                                  "1:00 2:00",  "Foo 5, 2003", "Jan 5",
                                  "Ja 5 2003",  "1//2",        "1/5/2003 x",
                                  ":",          "1:",          "/",
                                  "PM",         "5 Jan",       "Jan",
                                  "1/5/",       "é",           "99999999999999999999/1/1"})
        EXPECT_EQ(attempt([&] { (void)CDate(bad); }).Number, 13) << bad;
    EXPECT_EQ(attempt([&] { (void)CDate(std::string(1000000, '/')); }).Number, 13);
}

TEST(Dates, NumbersOutsideTheirRangeAreError6) {
    EXPECT_EQ(CDate(2958465.5).days, 2958465.5);
    EXPECT_EQ(CDate(-657434.5).days, -657434.5);
    for (const double bad : {2958466.0, -657435.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(attempt([&] { (void)CDate(bad); }).Number, 6) << bad;
        EXPECT_EQ(attempt([&] { (void)CStr(Date{bad}); }).Number, 6) << bad;
    }
}
