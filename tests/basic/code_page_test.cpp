#include "Basic/code_page.h"
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>

using basic::CodePage;

namespace {
constexpr int kAllPages[] = {874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 65001};

std::string bytePair(int first, int second) { return {static_cast<char>(first), static_cast<char>(second)}; }
} // namespace

TEST(CodePage, EveryOneAndTwoByteStringSurvivesInEveryPage) {
    for (const int number : kAllPages) {
        SCOPED_TRACE(number);
        const CodePage page(number);
        EXPECT_EQ(page.number(), number);
        int lost = 0;
        for (int first = 0; first < 256; ++first) {
            const std::string one(1, static_cast<char>(first));
            lost += page.tryEncode(page.decode(one)) != one;
            for (int second = 0; second < 256; ++second) {
                const std::string two = bytePair(first, second);
                lost += page.tryEncode(page.decode(two)) != two;
            }
        }
        EXPECT_EQ(lost, 0);
    }
}

TEST(CodePage, LongRandomBytesSurvive) {
    for (const int number : kAllPages) {
        SCOPED_TRACE(number);
        const CodePage page(number);
        std::string bytes;
        for (unsigned i = 0, x = 12345; i < 100000; ++i, x = x * 1664525 + 1013904223)
            bytes += static_cast<char>(x >> 24);
        EXPECT_EQ(page.encode(page.decode(bytes)), bytes);
    }
}

TEST(CodePage, DecodesToTheCharactersOfThePage) {
    struct Row {
        int page;
        std::string bytes, text;
    };
    const Row rows[] = {
        {1252, "", ""},
        {1252, "plain", "plain"},
        {1252, "\x80uro \xE9\xFF", "€uro éÿ"},
        {1252, "\x81\x8D\x8F\x90\x9D", "\u0081\u008D\u008F\u0090\u009D"},
        {1252, std::string("a\0b", 3), std::string("a\0b", 3)},
        {1250, "\x8A\xE8", "Šč"},
        {1251, "\xCF\xF0\xE8", "При"},
        {1253, "\xC1\xE1", "Αα"},
        {1253, "\xD2\xFF", "\uF7D2\uF7FF"},
        {1254, "\xDD\xF0", "İğ"},
        {1255, "\xF9\xEC", "של"},
        {1256, "\xD3", "س"},
        {1257, "\xE0", "ą"},
        {1258, "\xF0\xFE", "đ₫"},
        {874, "\xA1", "ก"},
        {932, "\x93\xFA\x96\x7B \xB6\x5C", "日本 ｶ\\"},
        {932, "\x81\x60", "～"},
        {932, "\x82", "\uF782"},
        {932, "\x82\x20", "\uF782 "},
        {936, "\xD6\xD0\xCE\xC4\x80", "中文€"},
        {949, "\xC7\xD1\x81\x41", "한갂"},
        {950, "\xA4\xA4\xA4\xE5", "中文"},
        {65001, "\xC3\xA9\xF0\x9F\x98\x80", "é😀"},
        {65001, "\xC3", "\uF7C3"},
        {65001, "\xC0\xAF\xED\xA0\x80", "\uF7C0\uF7AF\uF7ED\uF7A0\uF780"},
        {65001, "\xEF\x9E\x80", "\uF7EF\uF79E\uF780"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const CodePage page(row.page);
        EXPECT_EQ(page.decode(row.bytes), row.text);
        EXPECT_EQ(page.encode(row.text), row.bytes);
    }
}

TEST(CodePage, BytesWithAnAmbiguousCharacterArePreserved) {
    const CodePage japanese(932);
    EXPECT_EQ(japanese.decode("\x81\xE0"), "≒");
    EXPECT_EQ(japanese.decode("\x87\x90"), "\uF787\uF790");
}

TEST(CodePage, AMissingCharacterIsError5) {
    struct Row {
        int page;
        std::string text;
    };
    const Row rows[] = {{1252, "Прив"}, {1252, "\u0080"}, {1252, "\uF780"},       {1252, "ab\xC3"}, {1252, "😀"},
                        {1251, "é"},    {932, "한"},      {932, "\u00A5"},        {949, "😀"},       {65001, "\xC3("},
                        {874, "é"},     {1250, "日"},     {65001, "\xED\xA0\x80"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const CodePage page(row.page);
        EXPECT_FALSE(page.tryEncode(row.text));
        EXPECT_EQ(basic::attempt([&] { (void)page.encode(row.text); }).Number, 5);
    }
}

TEST(CodePage, AMissingCharacterCanBeReplaced) {
    const auto western = CodePage::windows1252();
    EXPECT_EQ(western.replaceMissing("10 € é"), "10 € é");
    EXPECT_EQ(western.replaceMissing("aПé中😀z"), "a?é??z");
    EXPECT_EQ(western.replaceMissing("a\xC3(\xFF"), "a?(?");
    EXPECT_EQ(CodePage(1251).replaceMissing("Пé"), "П?");
    EXPECT_EQ(CodePage(932).replaceMissing("中é"), "中?");
    EXPECT_EQ(CodePage(65001).replaceMissing("中é😀"), "中é😀");
    EXPECT_EQ(western.replaceMissing(""), "");
}

TEST(CodePage, AnUnknownNumberIsError5) {
    for (const int number : {0, -1, 1, 1249, 1259, 65000, 99999})
        EXPECT_EQ(basic::attempt([&] { CodePage page(number); }).Number, 5) << number;
}

TEST(CodePage, TheDefaultPageIs1252AndCopiesAreEquivalent) {
    const CodePage page = CodePage::windows1252();
    const CodePage copy = page;
    EXPECT_EQ(copy.number(), 1252);
    EXPECT_EQ(copy.decode("\x80"), "€");
}
