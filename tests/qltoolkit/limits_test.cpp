// Extreme depths, lengths and numbers of errors: no crash, and linear time.
#include "tests/qltoolkit/ast_dump.h"
#include <chrono>
#include <gtest/gtest.h>

using qltoolkit::dump::Parsed;

namespace {

std::string repeat(const std::string& text, std::size_t count) {
    std::string all;
    all.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

std::string inSub(const std::string& text) { return "Sub A()\n" + text + "\nEnd Sub\n"; }

/// Returns the diagnostics of a procedure with these statements.
std::string errorsOf(const std::string& text) { return Parsed{inSub(text)}.diagnostics(); }

double secondsFor(const std::string& text) {
    const auto start = std::chrono::steady_clock::now();
    const Parsed parsed{text};
    EXPECT_EQ(parsed.diagnostics(), "");
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

TEST(ParserLimits, ExpressionsCanBeNestedTwoHundredDeep) {
    EXPECT_EQ(errorsOf("x = " + repeat("(", 190) + "1" + repeat(")", 190)), "");
    EXPECT_EQ(errorsOf("x = " + repeat("(", 100'000) + "1" + repeat(")", 100'000)), "2:205 1804");
    EXPECT_EQ(errorsOf("x = " + repeat("-", 100'000) + "1"), "2:205 1804");
    EXPECT_EQ(errorsOf("x = " + repeat("Not ", 100'000) + "1"), "2:805 1804");
    EXPECT_EQ(errorsOf("x = " + repeat("f(", 100'000)), "2:405 1804");
    EXPECT_EQ(errorsOf("f (" + repeat("(", 100'000)).substr(0, 2), "2:");
}

TEST(ParserLimits, BlocksCanBeNestedTwoHundredDeep) {
    EXPECT_EQ(errorsOf(repeat("If a Then\n", 190) + repeat("End If\n", 190)), "");
    for (const auto* head :
         {"If a Then\n", "For i = 1 To 2\n", "Do\n", "With a\n", "While a\n", "Select Case a\nCase 1\n"}) {
        const Parsed parsed{inSub(repeat(head, 50'000)) + "Sub B()\nx = )\nEnd Sub\n"};
        ASSERT_EQ(parsed.result.diagnostics.size(), 2u) << head;
        EXPECT_EQ(parsed.result.diagnostics[0].number, 1529) << head;
        EXPECT_EQ(parsed.result.diagnostics[1].number, 1800) << "the next procedure is parsed";
    }
    EXPECT_EQ(errorsOf(repeat("If a Then ", 50'000) + "x = 1"), "2:2001 1529");
}

TEST(ParserLimits, HeadersCanBeNestedTwoHundredDeep) {
    const auto form = [](const std::string& begin, const std::string& end, std::size_t depth) {
        return Parsed("VERSION 5.00\n" + repeat(begin, depth) + repeat(end, depth) + "Dim a\n", "Test.frm")
            .diagnostics();
    };
    EXPECT_EQ(form("Begin VB.Frame F\n", "End\n", 200), "");
    EXPECT_EQ(form("Begin VB.Frame F\n", "End\n", 100'000), "202:1 1010");
    EXPECT_EQ(Parsed("VERSION 5.00\nBegin VB.Form F\n" + repeat("BeginProperty a\n", 100'000), "A.frm").diagnostics(),
              "202:1 1010");
}

TEST(ParserLimits, DirectivesCanBeNestedWithoutLimit) {
    EXPECT_EQ(Parsed(repeat("#If 1 Then\n", 100'000) + "Dim a\n" + repeat("#End If\n", 100'000)).diagnostics(), "");
    EXPECT_EQ(Parsed(repeat("#If 0 Then\n", 100'000) + "(((\n" + repeat("#End If\n", 100'000)).diagnostics(), "");
    EXPECT_EQ(Parsed("#If " + repeat("CLng(", 100'000) + "1" + repeat(")", 100'000) + " Then\n#End If").diagnostics(),
              "1:1005 1804");
}

TEST(ParserLimits, AcceptsLongChains) {
    EXPECT_EQ(errorsOf("x = 1" + repeat(" + 1", 1'000'000)), "");
    EXPECT_EQ(errorsOf("x = a" + repeat(".b", 1'000'000)), "");
    EXPECT_EQ(errorsOf("x = a" + repeat("(1)", 1'000'000)), "");
    EXPECT_EQ(errorsOf("f 1" + repeat(", 1", 1'000'000)), "");
    EXPECT_EQ(errorsOf(repeat("x = 1: ", 1'000'000)), "");
    EXPECT_EQ(Parsed("#If 1" + repeat(" And 1", 100'000) + " Then\nDim a\n#End If").diagnostics(), "");
}

TEST(ParserLimits, TreesOfOrdinaryCodeAreSmall) {
    const std::string procedure =
        "Public Function Work(ByVal first As Long) As Long\r\n    Dim i As Long, text As String\r\n"
        "    For i = 1 To 10\r\n        If first > i And i < 8 Then\r\n"
        "            text = text & \"item \" & CStr(i)\r\n        End If\r\n    Next\r\n"
        "    Work = Len(text) + first \\ 3  ' towards the limit\r\nEnd Function\r\n\r\n";
    for (const int count : {1000, 10'000}) {
        const auto text = repeat(procedure, static_cast<std::size_t>(count));
        const Parsed parsed{text};
        EXPECT_LT(static_cast<double>(parsed.result.module->arena.footprint()), static_cast<double>(text.size()) * 4);
    }
}

TEST(ParserLimits, AcceptsALineOfTenMegabytes) {
    constexpr std::size_t kTenMegabytes = 10'000'000;
    EXPECT_EQ(errorsOf("x = \"" + std::string(kTenMegabytes, 'a') + "\""), "");
    EXPECT_EQ(errorsOf("' " + std::string(kTenMegabytes, 'a')), "");
    EXPECT_EQ(errorsOf("x = " + std::string(kTenMegabytes, ' ') + "1"), "");
    EXPECT_EQ(errorsOf(std::string(kTenMegabytes, 'a') + " = 1"), "2:1 1106");
    EXPECT_EQ(errorsOf("x = \"" + std::string(kTenMegabytes, 'a')), "2:5 1101");
    EXPECT_EQ(errorsOf("x = " + std::string(kTenMegabytes, '1')), "2:5 1104");
    EXPECT_EQ(errorsOf("x = " + std::string(kTenMegabytes, ')')), "2:5 1800");
}

TEST(ParserLimits, StopsAfterFiveHundredErrors) {
    const Parsed parsed{inSub(repeat("x = \n", 100'000))};
    ASSERT_EQ(parsed.result.errors, 501u);
    EXPECT_EQ(parsed.result.diagnostics.back().number, 1009);
    EXPECT_EQ(parsed.result.diagnostics.back().text, "More than 500 errors; the rest of the file was not checked.");
    EXPECT_EQ(parsed.result.diagnostics.front().line, 2u);
    EXPECT_NE(parsed.result.module, nullptr);
}

TEST(ParserLimits, TimeAndMemoryAreLinear) {
    const std::string procedure =
        inSub("    total = first * 2 + second(i).value ' why\n    If a > b Then\n        f x, \"text\"\n    End If");
    const std::string small = repeat(procedure, 2'000), large = repeat(procedure, 40'000);
    secondsFor(small);
    const double one = secondsFor(small), twenty = secondsFor(large);
    EXPECT_LT(twenty, one * 20 * 4 + 0.5) << "twenty times the source";
    const Parsed parsed{large};
    EXPECT_LT(parsed.result.module->arena.footprint(), large.size() * 20);
}

TEST(ParserLimits, AcceptsManyNames) {
    std::string text;
    for (int i = 0; i < 100'000; ++i) text += "Dim name" + std::to_string(i) + "\n";
    Parsed parsed{text};
    EXPECT_EQ(parsed.diagnostics(), "");
    for (const auto* name : {"NAME0", "NAME99999"})
        EXPECT_TRUE(parsed.symbols.spelling(parsed.symbols.intern(name)).starts_with("name")); // the first spelling
}
