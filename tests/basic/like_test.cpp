#include "Basic/like.h"
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>

using namespace basic;

TEST(Like, MatchesPatterns) {
    struct Row {
        std::string text, pattern;
        bool fits;
    };
    const Row rows[] = {
        {"", "", true},
        {"a", "", false},
        {"", "a", false},
        {"", "*", true},
        {"", "**", true},
        {"", "?", false},
        {"aBBBa", "a*a", true},
        {"F", "[A-Z]", true},
        {"F", "[!A-Z]", false},
        {"a2a", "a#a", true},
        {"aM5b", "a[L-P]#[!c-e]", true},
        {"BAT123khg", "B?T*", true},
        {"CAT123khg", "B?T*", false},
        {"ab", "a*b*", true},
        {"ab", "a", false},
        {"a", "ab", false},
        {"é", "?", true},
        {"é€", "??", true},
        {"é", "[à-ü]", true},
        {"x#", "x[#]", true},
        {"x*", "x[*]", true},
        {"x?", "x[?]", true},
        {"x[", "x[[]", true},
        {"x]", "x]", true},
        {"ab", "a[]b", true},
        {"-", "[-a]", true},
        {"-", "[a-]", true},
        {"b", "[a-]", false},
        {"-", "[!a-]", false},
        {"b", "[a-ce-g]", true},
        {"d", "[a-ce-g]", false},
        {"!", "[a!]", true},
        {"!", "!", true},
        {"q", "[!]", true},
        {"", "[!]", false},
        {"5", "[0-9-]", true},
        {"-", "[0-9-]", true},
        {"-", "[-]", true},
        {"٣", "#", false},
        {"IsQuinloftProject=True", "IsQuinloftProject=True*", true},
        {"A", "a", false},
        {"aXbXc", "*X?", true},
        {"\xFF", "?", true},
        {"\xFF", "\xFE", false},
        {"line\nbreak", "l*k", true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text + " Like " + row.pattern);
        EXPECT_EQ(Like(row.text, row.pattern), row.fits);
    }
}

TEST(Like, IgnoresCaseForTextCompare) {
    struct Row {
        std::string text, pattern;
        bool fits;
    };
    const Row rows[] = {{"ABC", "a*C", true}, {"É", "é", true},       {"q", "[A-Z]", true},
                        {"Q", "[a-z]", true}, {"Q", "[!a-z]", false}, {"1", "[A-Z]", false}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text + " Like " + row.pattern);
        EXPECT_EQ(Like(row.text, row.pattern, vbTextCompare), row.fits);
    }
}

TEST(Like, ABadPatternIsError93) {
    for (const std::string pattern : {"[", "a[b", "[!", "[z-a]", "x[a-c-e]", "[!9-0]"}) {
        SCOPED_TRACE(pattern);
        EXPECT_EQ(attempt([&] { (void)Like("nothing of this", pattern); }).Number, 93);
    }
    EXPECT_EQ(attempt([&] { (void)Like("q", "[Z-a]", vbTextCompare); }).Number, 93);
}

TEST(Like, ManyStarsAreAsFastAsOne) {
    std::string pattern;
    for (int i = 0; i < 100; ++i) pattern += "*a";
    EXPECT_FALSE(Like(std::string(20000, 'a'), pattern + "*b"));
    EXPECT_TRUE(Like(std::string(20000, 'a'), pattern));
}
