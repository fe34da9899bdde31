#include "Basic/date.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/format/format.h"
#include "Components/Tamarik/format/format_functions.h"
#include "tests/tamarik/error_of.h"
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace tamarik;
using test::errorOf;

namespace {

FormatValue valueOf(const std::string& type, const std::string& text) {
    if (type == "Null") return {};
    if (type == "String") return FormatValue(basic::toUtf16(text));
    if (type == "Boolean") return FormatValue(text == "True");
    if (type == "Byte") return FormatValue(basic::CByte(text));
    if (type == "Integer") return FormatValue(basic::CInt(text));
    if (type == "Long") return FormatValue(basic::CLng(text));
    if (type == "Single") return FormatValue(basic::CSng(text));
    if (type == "Double") return FormatValue(basic::CDbl(text));
    if (type == "Currency") return FormatValue(basic::CCur(text));
    if (type == "Decimal") return FormatValue(Decimal96::parse(text));
    if (type == "Date") return FormatValue(basic::CDate(text));
    ADD_FAILURE() << "unknown type: " << type;
    return {};
}

std::string format(const FormatValue& value, std::u16string_view format, WeekRules rules = {}) {
    return basic::toUtf8(Format(value, format, rules));
}

std::string written(const std::u16string& text) { return basic::toUtf8(text); }

basic::Decimal amount(std::string_view text) { return basic::readNumber(text).value(); }

} // namespace

TEST(Format, FollowsTheReference) {
    std::ifstream file(FERNWICK_SOURCE_DIR "/tests/tamarik/format.tsv");
    int rows = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) continue;
        std::istringstream columns(line);
        std::string source, value, picture, result;
        std::getline(columns, source, '\t');
        std::getline(columns, value, '\t');
        std::getline(columns, picture, '\t');
        std::getline(columns, result);
        const auto type = value.substr(0, value.find(' '));
        const auto text = value.size() > type.size() ? value.substr(type.size() + 1) : "";
        EXPECT_EQ(format(valueOf(type, text), basic::toUtf16(picture)), result) << line;
        ++rows;
    }
    EXPECT_GE(rows, 200);
}

TEST(Format, RefusesNumbersThatAreNoDates) {
    EXPECT_EQ(errorOf([] { format(FormatValue(1e10), u"yyyy"); }), 6);
    EXPECT_EQ(errorOf([] { format(FormatValue(u"1e999"), u"0"); }), 6);
}

TEST(Format, WeeksFollowTheRules) {
    const FormatValue newYear(basic::CDate("1/1/2005"));
    EXPECT_EQ(format(newYear, u"w ww", {vbMonday, vbFirstFourDays}), "6 53");
    EXPECT_EQ(format(newYear, u"w ww", {vbUseSystemDayOfWeek, vbUseSystem}), "7 1");
    EXPECT_EQ(format(newYear, u"dddd", {vbMonday}), "Saturday");
    EXPECT_EQ(errorOf([&] { format(newYear, u"w", {8}); }), 5);
    EXPECT_EQ(errorOf([&] { format(newYear, u"ww", {1, 4}); }), 5);
}

TEST(Format, TakesTheYearOfTodayForTextsWithoutOne) {
    const auto today = basic::CDate("6/15/2004");
    EXPECT_EQ(Format(FormatValue(u"Jan 5"), u"yyyy-mm-dd", {}, today), u"2004-01-05");
}

TEST(Format, SurvivesFormatsThatEndEarly) {
    EXPECT_EQ(format(FormatValue(5.0), u"0\"x"), "5x");
    EXPECT_EQ(format(FormatValue(5.0), u"0\\"), "5");
    EXPECT_EQ(format(FormatValue(5.0), u"0E+"), "5E+");
    EXPECT_EQ(format(FormatValue(5.0), u";"), "");
    EXPECT_EQ(format(FormatValue(-5.0), u"\\x"), "-x");
    EXPECT_EQ(format(FormatValue(u"ab"), u"\\x"), "abx");
}

TEST(FormatNumber, UsesTheStyle) {
    EXPECT_EQ(written(FormatNumber(amount("1234567.891"))), "1,234,567.89");
    EXPECT_EQ(written(FormatNumber(amount("-1234.5"))), "-1,234.50");
    EXPECT_EQ(written(FormatNumber(amount("2.5"), {0})), "3");
    EXPECT_EQ(written(FormatNumber(amount("0.5"))), "0.50");
    EXPECT_EQ(written(FormatNumber(amount("0.5"), {-1, vbFalse})), ".50");
    EXPECT_EQ(written(FormatNumber(amount("0"), {0, vbFalse})), "0");
    EXPECT_EQ(written(FormatNumber(amount("-1234.5"), {1, vbUseDefault, vbTrue})), "(1,234.5)");
    EXPECT_EQ(written(FormatNumber(amount("1234.5"), {1, vbUseDefault, vbUseDefault, vbFalse})), "1234.5");
    EXPECT_EQ(written(FormatNumber(amount("-0.001"))), "0.00");
    EXPECT_EQ(written(FormatNumber(amount("1"), {30})).size(), 32U);
    EXPECT_EQ(errorOf([] { FormatNumber(amount("1"), {-2}); }), 5);
    EXPECT_EQ(errorOf([] { FormatNumber(amount("1"), {256}); }), 5);
}

TEST(FormatNumber, CurrencyAndPercentHaveMarks) {
    EXPECT_EQ(written(FormatCurrency(amount("1000"))), "$1,000.00");
    EXPECT_EQ(written(FormatCurrency(amount("-1000"))), "($1,000.00)");
    EXPECT_EQ(written(FormatCurrency(amount("-1000"), {0, vbUseDefault, vbFalse})), "-$1,000");
    EXPECT_EQ(written(FormatPercent(amount("0.1234"))), "12.34%");
    EXPECT_EQ(written(FormatPercent(amount("-12"))), "-1,200.00%");
    EXPECT_EQ(written(FormatPercent(amount("-0.5"), {0, vbUseDefault, vbTrue})), "(50%)");
}

TEST(FormatDateTime, HasFiveFormats) {
    const auto date = basic::CDate("4/3/1993 5:34:06 PM");
    EXPECT_EQ(written(FormatDateTime(date)), "4/3/1993 5:34:06 PM");
    EXPECT_EQ(written(FormatDateTime(date, vbLongDate)), "Saturday, April 03, 1993");
    EXPECT_EQ(written(FormatDateTime(date, vbShortDate)), "4/3/1993");
    EXPECT_EQ(written(FormatDateTime(date, vbLongTime)), "5:34:06 PM");
    EXPECT_EQ(written(FormatDateTime(date, vbShortTime)), "17:34");
    EXPECT_EQ(errorOf([&] { FormatDateTime(date, 5); }), 5);
}
