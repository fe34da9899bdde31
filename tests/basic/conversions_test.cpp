#include "Basic/conversions.h"
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>
#include <limits>

using namespace basic;

namespace {

template <class F>
int failure(F f) {
    return attempt([&] { (void)f(); }).Number;
}
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(Conversions, CBool) {
    struct Row {
        Convertible value;
        bool result;
    };
    const Row rows[] = {{"True", true}, {"false", false}, {" TRUE ", true}, {"0", false}, {"-1", true},  {"0.1", true},
                        {0, false},     {0.25, true},     {-1, true},       {true, true}, {"&H0", false}};
    for (const Row& row : rows) EXPECT_EQ(CBool(row.value), row.result);
    for (const char* bad : {"", "yes", "T", "True1"}) EXPECT_EQ(failure([&] { return CBool(bad); }), 13) << bad;
}

TEST(Conversions, WholeNumbersRoundHalvesToEven) {
    struct Row {
        double value;
        int result;
    };
    const Row rows[] = {{0.5, 0},
                        {1.5, 2},
                        {2.5, 2},
                        {3.5, 4},
                        {-0.5, 0},
                        {-1.5, -2},
                        {-2.5, -2},
                        {2.4, 2},
                        {2.6, 3},
                        {-2.6, -3},
                        {0.49999999999999994, 0},
                        {32767.4, 32767}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(CInt(row.value), row.result);
        EXPECT_EQ(CLng(row.value), row.result);
    }
}

TEST(Conversions, WholeNumbersOfTexts) {
    struct Row {
        std::string text;
        int result;
    };
    const Row rows[] = {{"12", 12},  {" 12 ", 12},   {"-12", -12},  {"12-", -12},  {"(12)", -12}, {"1,234", 1234},
                        {"$5", 5},   {"2.5", 2},     {"1e3", 1000}, {"1D3", 1000}, {"&H10", 16},  {"&h7fff", 32767},
                        {"&O10", 8}, {"-&H10", -16}, {"+ 3", 3},    {"0", 0},      {"-0", 0}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(CLng(row.text), row.result);
        EXPECT_EQ(CInt(row.text), row.result);
        EXPECT_EQ(CDbl(row.text), row.text == "2.5" ? 2.5 : row.result);
    }
    EXPECT_EQ(CInt("&HFFFF"), -1);
    EXPECT_EQ(CInt("&O177777"), -1);
    EXPECT_EQ(CLng("&HF060"), 61536);
    EXPECT_EQ(CLng("&HFFFFF060"), -4000);
    EXPECT_EQ(CDbl("&HFFFF"), 65535);
    EXPECT_EQ(CDbl("&HFFFFFFFFF"), 68719476735.0);
    EXPECT_EQ(failure([] { return CInt("&HFFFF&"); }), 6);
    EXPECT_EQ(failure([] { return CInt("&H10000"); }), 6);
    EXPECT_EQ(failure([] { return CLng("&H100000000"); }), 6);
    EXPECT_EQ(failure([] { return CByte("&H100"); }), 6);
    EXPECT_EQ(CLng("&HFFFF&"), 65535);
    EXPECT_EQ(CLng("&HFFFFFFFF"), -1);
    EXPECT_EQ(CByte("&HFF"), 255);
    EXPECT_EQ(CLng(true), -1);
    for (const char* bad : {"", " ", "abc", "1x", "True", "1 2", "&H", "1/2/2003", "--1", "1e"}) {
        SCOPED_TRACE(bad);
        EXPECT_EQ(failure([&] { return CByte(bad); }), 13);
        EXPECT_EQ(failure([&] { return CInt(bad); }), 13);
        EXPECT_EQ(failure([&] { return CLng(bad); }), 13);
        EXPECT_EQ(failure([&] { return CSng(bad); }), 13);
        EXPECT_EQ(failure([&] { return CDbl(bad); }), 13);
        EXPECT_EQ(failure([&] { return CCur(bad); }), 13);
    }
}

TEST(Conversions, WholeNumbersOverflow) {
    struct Row {
        double value;
        int ofByte, ofInteger, ofLong; // the error
    };
    const Row rows[] = {
        {-0.5, 0, 0, 0},         {-0.51, 6, 0, 0},         {255.4, 0, 0, 0},         {255.5, 6, 0, 0},
        {32767.5, 6, 6, 0},      {-32768.5, 6, 0, 0},      {-32768.6, 6, 6, 0},      {2147483647.4, 6, 6, 0},
        {2147483647.5, 6, 6, 6}, {-2147483648.5, 6, 6, 0}, {-2147483649.0, 6, 6, 6}, {1e300, 6, 6, 6},
        {kInfinity, 6, 6, 6},    {kNotANumber, 6, 6, 6},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(failure([&] { return CByte(row.value); }), row.ofByte);
        EXPECT_EQ(failure([&] { return CInt(row.value); }), row.ofInteger);
        EXPECT_EQ(failure([&] { return CLng(row.value); }), row.ofLong);
    }
    EXPECT_EQ(failure([] { return CLng("2147483648"); }), 6);
    EXPECT_EQ(failure([] { return CLng("1e400"); }), 6);
}

TEST(Conversions, TrueIsAllOnesInEveryType) {
    EXPECT_EQ(CByte(true), 255);
    EXPECT_EQ(CByte(false), 0);
    EXPECT_EQ(CInt(true), -1);
    EXPECT_EQ(CDbl(true), -1);
    EXPECT_EQ(CCur(true), Currency{-10000});
}

TEST(Conversions, CSngAndCDbl) {
    EXPECT_EQ(CSng("0.1"), 0.1F);
    EXPECT_EQ(CSng(3.4028234663852886e38), std::numeric_limits<float>::max());
    EXPECT_EQ(CSng(1e-300), 0.0F);
    EXPECT_EQ(failure([] { return CSng(3.4028236e38); }), 6);
    EXPECT_EQ(failure([] { return CSng("-1e39"); }), 6);
    EXPECT_EQ(CDbl("1,234.5"), 1234.5);
    EXPECT_EQ(CDbl("1e-400"), 0.0);
    EXPECT_EQ(failure([] { return CDbl("1e309"); }), 6);
}

TEST(Conversions, CCurIsExactToTheTenThousandth) {
    struct Row {
        std::string text;
        std::int64_t scaled;
    };
    const Row rows[] = {
        {"0", 0},
        {"1.5", 15000},
        {"0.00005", 0},
        {"0.00015", 2},
        {"0.000050001", 1},
        {"-0.00015", -2},
        {"1e3", 10000000},
        {"$1,234.5678", 12345678},
        {"0.00004", 0},
        {"0.000000001", 0},
        {"922337203685477.5807", 9223372036854775807},
        {"-922337203685477.5808", -9223372036854775807 - 1},
        {"&HFF", 2550000},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(CCur(row.text).scaled, row.scaled);
    }
    EXPECT_EQ(CCur(1.5).scaled, 15000);
    EXPECT_EQ(CCur(-2).scaled, -20000);
    for (const char* large : {"922337203685477.5808", "-922337203685477.5809", "1e30", "99999999999999999999"})
        EXPECT_EQ(failure([&] { return CCur(large); }), 6) << large;
    EXPECT_EQ(failure([] { return CCur(1e15); }), 6);
    EXPECT_EQ(failure([] { return CCur(kNotANumber); }), 6);
}

TEST(Conversions, CStr) {
    EXPECT_EQ(CStr(true), "True");
    EXPECT_EQ(CStr(false), "False");
    EXPECT_EQ(CStr(Byte{200}), "200");
    EXPECT_EQ(CStr(Integer{-5}), "-5");
    EXPECT_EQ(CStr(Long{-2147483647 - 1}), "-2147483648");
    struct DoubleRow {
        double number;
        std::string text;
    };
    const DoubleRow doubles[] = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-1.5, "-1.5"},
        {0.1, "0.1"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {100000000000000, "100000000000000"},
        {123456789012345, "123456789012345"},
        {1e15, "1E+15"},
        {1234567890123456.0, "1.23456789012346E+15"},
        {1e20, "1E+20"},
        {-1.5e100, "-1.5E+100"},
        {0.0001, "0.0001"},
        {1e-15, "0.000000000000001"},
        {1e-16, "1E-16"},
        {1.0 / 30, "3.33333333333333E-02"},
        {1.5e-300, "1.5E-300"},
        {99999999999999.96, "100000000000000"},
        {0.1 + 0.2, "0.3"},
        {1234.5678, "1234.5678"},
        {kInfinity, "1.#INF"},
        {-kInfinity, "-1.#INF"},
        {kNotANumber, "-1.#IND"},
    };
    for (const auto& row : doubles) EXPECT_EQ(CStr(row.number), row.text);
    struct SingleRow {
        float number;
        std::string text;
    };
    const SingleRow singles[] = {{0.1F, "0.1"},   {1.0F / 3, "0.3333333"},        {1234567.0F, "1234567"},
                                 {1e7F, "1E+07"}, {12345678.0F, "1.234568E+07"},  {0.01F / 3, "3.333333E-03"},
                                 {-2.5F, "-2.5"}, {3.402823e38F, "3.402823E+38"}, {16777216.0F, "1.677722E+07"}};
    for (const auto& row : singles) EXPECT_EQ(CStr(row.number), row.text);
    struct CurrencyRow {
        std::int64_t scaled;
        std::string text;
    };
    const CurrencyRow currencies[] = {{0, "0"},
                                      {15000, "1.5"},
                                      {-5, "-0.0005"},
                                      {10000, "1"},
                                      {123456789, "12345.6789"},
                                      {-9223372036854775807 - 1, "-922337203685477.5808"}};
    for (const auto& row : currencies) EXPECT_EQ(CStr(Currency{row.scaled}), row.text);
}

TEST(Conversions, TextsOfRandomNumbersReadBack) {
    std::uint64_t x = 42;
    for (int i = 0; i < 2000; ++i) {
        x = x * 6364136223846793005U + 1442695040888963407U;
        const double number = static_cast<double>(x >> 34) / 1e4; // no more than 15 digits
        EXPECT_EQ(CDbl(CStr(number)), number);
        const Currency currency{static_cast<std::int64_t>(x)};
        EXPECT_EQ(CCur(CStr(currency)), currency);
    }
}

TEST(Conversions, FixIntRoundSgnAbs) {
    struct Row {
        double number, fix, down, rounded;
        int sign;
    };
    const Row rows[] = {{0, 0, 0, 0, 0},        {2.5, 2, 2, 2, 1},      {3.5, 3, 3, 4, 1},
                        {-2.5, -2, -3, -2, -1}, {-8.4, -8, -9, -8, -1}, {1e20, 1e20, 1e20, 1e20, 1}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.number);
        EXPECT_EQ(Fix(row.number), row.fix);
        EXPECT_EQ(Int(row.number), row.down);
        EXPECT_EQ(Round(row.number), row.rounded);
        EXPECT_EQ(Sgn(row.number), row.sign);
        EXPECT_EQ(Abs(row.number), row.sign * row.number);
    }
    EXPECT_EQ(Int("-1.5"), -2);
    EXPECT_EQ(Round(0.125, 2), 0.12);
    EXPECT_EQ(Round(0.375, 2), 0.38);
    EXPECT_EQ(Round(1234.5678, 3), 1234.568);
    EXPECT_EQ(Round(1e300, 22), 1e300);
    EXPECT_EQ(failure([] { return Round(1, -1); }), 5);
    EXPECT_EQ(failure([] { return Round(1, 23); }), 5);
    EXPECT_EQ(Abs(Integer{-5}), 5);
    EXPECT_EQ(Abs(Long{-70000}), 70000);
    EXPECT_EQ(failure([] { return Abs(Integer{-32768}); }), 6);
    EXPECT_EQ(failure([] { return Abs(Long{-2147483647 - 1}); }), 6);
}
