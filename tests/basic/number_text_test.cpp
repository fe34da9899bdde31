#include "Basic/number_text.h"
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>

using namespace basic;

TEST(NumberText, HexAndOct) {
    struct Row {
        Long number;
        std::string hex, oct;
    };
    const Row rows[] = {{0, "0", "0"},
                        {10, "A", "12"},
                        {255, "FF", "377"},
                        {65535, "FFFF", "177777"},
                        {-1, "FFFFFFFF", "37777777777"},
                        {2147483647, "7FFFFFFF", "17777777777"},
                        {-2147483647 - 1, "80000000", "20000000000"}};
    for (const Row& row : rows) {
        EXPECT_EQ(Hex(row.number), row.hex);
        EXPECT_EQ(Oct(row.number), row.oct);
    }
    EXPECT_EQ(Hex(Integer{-1}), "FFFF");
    EXPECT_EQ(Oct(Integer{-32768}), "100000");
}

TEST(NumberText, Str) {
    EXPECT_EQ(Str(Long{5}), " 5");
    EXPECT_EQ(Str(Long{-5}), "-5");
    EXPECT_EQ(Str(0.0), " 0");
    EXPECT_EQ(Str(0.5), " .5");
    EXPECT_EQ(Str(-0.25), "-.25");
    EXPECT_EQ(Str(10.5), " 10.5");
    EXPECT_EQ(Str(1e20), " 1E+20");
    EXPECT_EQ(Str(0.1F), " .1");
    EXPECT_EQ(Str(Currency{-5000}), "-.5");
}

TEST(NumberText, Val) {
    struct Row {
        std::string text;
        double value;
    };
    const Row rows[] = {
        {"", 0},
        {"abc", 0},
        {"12", 12},
        {"  12abc", 12},
        {"1 615 198th Street", 1615198},
        {"-5", -5},
        {"- 5", -5},
        {"+7", 7},
        {"--7", 0},
        {"1.5.3", 1.5},
        {".5", 0.5},
        {".", 0},
        {"1.", 1},
        {"1,5", 1},
        {"1E3", 1000},
        {"1d3", 1000},
        {"1e", 1},
        {"1e+", 1},
        {"1e-2x", 0.01},
        {"\t2\n4", 24},
        {"2\r4", 2},
        {"&HFF", 255},
        {"&hffff", -1},
        {"&HFFFF&", 65535},
        {"&H10000", 65536},
        {"&HFFFFFFFF", -1},
        {"&O17", 15},
        {"&o177777", -1},
        {"&H", 0},
        {"&HG", 0},
        {"&O8", 0},
        {"&17", 0},
        {"& H 1 F", 31},
        {"-&H10", -16},
        {"1e-9999", 0},
        {"1e-99999999999", 0},
        {"0e99999999999", 0},
        {"$5", 0},
        {"(5)", 0},
        {"1&", 1},
        {"1234567890123456789", 1234567890123456789.0},
        {"1\u00A02", 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Val(row.text), row.value);
    }
    for (const std::string tooLarge : {"1e309", "-1e309", "1e99999999999", "&H100000000", "&O77777777777"})
        EXPECT_EQ(attempt([&] { (void)Val(tooLarge); }).Number, 6) << tooLarge;
}

TEST(NumberText, IsNumeric) {
    struct Row {
        std::string text;
        bool numeric;
    };
    const Row rows[] = {
        {"", false},
        {" ", false},
        {"1", true},
        {" -1.5 ", true},
        {"1-", true},
        {"- 1", true},
        {"--1", false},
        {"-1-", false},
        {"$1,2.3", true},
        {"(1)", true},
        {"(1", false},
        {"1)", false},
        {"(-1)", false},
        {"-(1)", false},
        {"1,2,,3", true},
        {",1", false},
        {"1.2,3", false},
        {"1e5", true},
        {"1D5", true},
        {"1e", false},
        {".5", true},
        {"5.", true},
        {".", false},
        {"$", false},
        {"$$1", false},
        {"1$", true},
        {"&HFF", true},
        {"&O17", true},
        {"&H", false},
        {"&HFFFFFFFFF", true},
        {"&HFFFFFFFFFFFFFFFFF", false},
        {"1e400", false},
        {"True", false},
        {"1 2", false},
        {"1x", false},
        {"\t1\r\n", true},
        {"1/2/2003", false},
    };
    for (const Row& row : rows) EXPECT_EQ(IsNumeric(row.text), row.numeric) << row.text;
}
