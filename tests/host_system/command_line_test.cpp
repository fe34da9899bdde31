#include "Host/system/command_line.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::string> namesOf(const std::string& line) {
    std::vector<std::string> names;
    for (const auto& reading : host::programReadings(line)) names.push_back(reading.name);
    return names;
}

} // namespace

TEST(CommandLine, ArgumentsFollowTheRulesOfWindowsPrograms) {
    struct {
        std::string line;
        std::vector<std::string> words;
    } const cases[] = {
        {R"()", {}},
        {R"(  )", {}},
        {R"(a b)", {"a", "b"}},
        {" a\t b ", {"a", "b"}},
        {R"("a b" c)", {"a b", "c"}},
        {R"(a"b c"d)", {"ab cd"}},
        {R"("")", {""}},
        {R"("ab\"c" "\\" d)", {R"(ab"c)", R"(\)", "d"}},
        {R"(a\\\b d"e f"g h)", {R"(a\\\b)", "de fg", "h"}},
        {R"(a\\\"b c d)", {R"(a\"b)", "c", "d"}},
        {R"(a\\\\"b c" d e)", {R"(a\\b c)", "d", "e"}},
        {R"(a"b"" c d)", {R"(ab" c d)"}},
        {R"("a""b")", {R"(a"b)"}},
        {R"(c:\dir\ x)", {R"(c:\dir\)", "x"}},
        {R"("open)", {"open"}},
        {R"($HOME `x` * ; | > &)", {"$HOME", "`x`", "*", ";", "|", ">", "&"}},
    };
    for (const auto& one : cases) EXPECT_EQ(host::splitArguments(one.line), one.words) << one.line;
}

TEST(CommandLine, AProgramsNameEndsAtItsQuoteOrAtABlank) {
    EXPECT_THAT(namesOf(R"("C:\My Tools\x.exe" a b)"), ElementsAre(R"(C:\My Tools\x.exe)"));
    EXPECT_EQ(host::programReadings(R"("a b"c d)").at(0).arguments, "c d");
    EXPECT_THAT(namesOf(R"(C:\My Tools\x.exe)"), ElementsAre(R"(C:\My)", R"(C:\My Tools\x.exe)"));
    EXPECT_THAT(namesOf(" a  b "), ElementsAre("a", "a  b"));
    EXPECT_THAT(namesOf("  "), IsEmpty());
    EXPECT_THAT(namesOf("\"open"), ElementsAre("open"));
    EXPECT_THAT(namesOf(R"("" x)"), ElementsAre(""));
    EXPECT_EQ(host::programReadings(R"("" x)").at(0).arguments, " x");
}

TEST(CommandLine, ALineOfMegabytesIsFast) {
    std::string line;
    for (int i = 0; i < 1'000'000; ++i) line += "a ";
    EXPECT_EQ(host::splitArguments(line).size(), 1'000'000u);
    EXPECT_LE(namesOf(line).size(), 2048u);
}
