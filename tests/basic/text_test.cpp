#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include <gtest/gtest.h>

using namespace basic;

namespace {
constexpr int kNoLimit = std::numeric_limits<int>::max();
const std::string kLong = "0123456é890123456789ü";
} // namespace

TEST(Text, CountsCharacters) {
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len("abc"), 3);
    EXPECT_EQ(Len("é€😀"), 3);
    EXPECT_EQ(Len(kLong), 21);
}

TEST(Text, LeftAndRight) {
    struct Row {
        std::string text;
        int length;
        std::string left, right;
    };
    const Row rows[] = {
        {"abc", 0, "", ""},
        {"abc", 2, "ab", "bc"},
        {"abc", 3, "abc", "abc"},
        {"abc", 9, "abc", "abc"},
        {"", 1, "", ""},
        {"é€x", 1, "é", "x"},
        {"é€x", 2, "é€", "€x"},
        {kLong, 9, "0123456é8", "23456789ü"},
        {"é€", kNoLimit, "é€", "é€"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Left(row.text, row.length), row.left);
        EXPECT_EQ(Right(row.text, row.length), row.right);
    }
    EXPECT_EQ(attempt([] { (void)Left("a", -1); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)Right("a", -1); }).Number, 5);
}

TEST(Text, Mid) {
    struct Row {
        std::string text;
        int start, length;
        std::string middle;
    };
    const Row rows[] = {
        {"abc", 1, 1, "a"}, {"abc", 2, 1, "b"},       {"abc", 2, kNoLimit, "bc"}, {"abc", 3, 9, "c"},
        {"abc", 4, 1, ""},  {"abc", kNoLimit, 1, ""}, {"abc", 1, 0, ""},          {"", 1, 1, ""},
        {"é€x", 2, 1, "€"}, {kLong, 8, 2, "é8"},      {kLong, 21, 1, "ü"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Mid(row.text, row.start, row.length), row.middle);
    }
    EXPECT_EQ(Mid("abc", 2), "bc");
    EXPECT_EQ(attempt([] { (void)Mid("a", 0, 1); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)Mid("a", 1, -1); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)Mid("a", -3); }).Number, 5);
}

TEST(Text, TrimsBlanksOnly) {
    struct Row {
        std::string text, both, left, right;
    };
    const Row rows[] = {
        {"  a b  ", "a b", "a b  ", "  a b"},
        {"\ta\n", "\ta\n", "\ta\n", "\ta\n"},
        {"   ", "", "", ""},
        {"", "", "", ""},
        {"\u00A0 ", "\u00A0", "\u00A0 ", "\u00A0"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Trim(row.text), row.both);
        EXPECT_EQ(LTrim(row.text), row.left);
        EXPECT_EQ(RTrim(row.text), row.right);
    }
}

TEST(Text, UCaseAndLCase) {
    struct Row {
        std::string text, upper, lower;
    };
    const Row rows[] = {
        {"aZ@[`{09", "AZ@[`{09", "az@[`{09"}, {"straße É", "STRAßE É", "straße é"}, {"жЖ", "ЖЖ", "жж"}, {"", "", ""},
        {"a\xC3Z", "A\xC3Z", "a\xC3z"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(UCase(row.text), row.upper);
        EXPECT_EQ(LCase(row.text), row.lower);
    }
}

TEST(Text, SpaceAndString) {
    EXPECT_EQ(Space(3), "   ");
    EXPECT_EQ(Space(0), "");
    EXPECT_EQ(String(3, "xyz"), "xxx");
    EXPECT_EQ(String(2, "€a"), "€€");
    EXPECT_EQ(String(0, "a"), "");
    EXPECT_EQ(attempt([] { (void)Space(-1); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)String(-1, "a"); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)String(1, ""); }).Number, 5);
}

TEST(Text, StrReverse) {
    EXPECT_EQ(StrReverse("abc"), "cba");
    EXPECT_EQ(StrReverse("é€x"), "x€é");
    EXPECT_EQ(StrReverse(""), "");
    EXPECT_EQ(StrReverse("a\xC3"), "\xC3"
                                   "a");
}

TEST(Text, AscAndChr) {
    struct Row {
        int page;
        std::string text;
        int number;
    };
    const Row rows[] = {{1252, "A", 65},   {1252, "€", 128},
                        {1252, "ÿ", 255},  {1252, std::string(1, '\0'), 0},
                        {1251, "Я", 0xDF}, {932, "日", 0x93FA - 0x10000},
                        {932, "ｱ", 0xB1},  {936, "中", 0xD6D0 - 0x10000}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const CodePage page(row.page);
        EXPECT_EQ(Asc(row.text + "x", page), row.number);
        EXPECT_EQ(Chr(row.number, page), row.text);
    }
    EXPECT_EQ(Asc("Я"), '?');
    EXPECT_EQ(Chr(0x93FA, CodePage(932)), "日");
    EXPECT_EQ(attempt([] { (void)Asc(""); }).Number, 5);
    for (const int bad : {-1, 256, 70000}) EXPECT_EQ(attempt([&] { (void)Chr(bad); }).Number, 5) << bad;
    for (const int bad : {-32769, 65536}) EXPECT_EQ(attempt([&] { (void)Chr(bad, CodePage(932)); }).Number, 5) << bad;
}

TEST(Text, AscWAndChrW) {
    struct Row {
        std::string text;
        int number;
    };
    const Row rows[] = {{"A", 65}, {"€", 0x20AC}, {"日", 0x65E5}, {"한", 0xD55C - 0x10000}, {"\uFFFD", -3}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(AscW(row.text + "x"), row.number);
        EXPECT_EQ(ChrW(row.number), row.text);
        EXPECT_EQ(ChrW(row.number & 0xFFFF), row.text);
    }
    EXPECT_EQ(AscW("😀"), 0xD83D - 0x10000);
    EXPECT_EQ(AscW("\xC3"), 0xC3);
    EXPECT_EQ(attempt([] { (void)AscW(""); }).Number, 5);
    for (const int bad : {-32769, 65536, 0xD800, 0xDFFF}) EXPECT_EQ(attempt([&] { (void)ChrW(bad); }).Number, 5) << bad;
}
