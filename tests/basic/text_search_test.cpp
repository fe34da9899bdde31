#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include "Basic/text_search.h"
#include <gtest/gtest.h>

using namespace basic;

namespace {
using Pieces = std::vector<std::string>;
const std::string kNeedle = "an unusually long text to look for";
} // namespace

TEST(TextSearch, InStr) {
    struct Row {
        int start;
        std::string text, what;
        VbCompareMethod compare;
        int position;
    };
    const Row rows[] = {
        {1, "abcabc", "bc", vbBinaryCompare, 2},
        {3, "abcabc", "bc", vbBinaryCompare, 5},
        {6, "abcabc", "bc", vbBinaryCompare, 0},
        {1, "abc", "B", vbBinaryCompare, 0},
        {1, "abc", "B", vbTextCompare, 2},
        {1, "", "a", vbBinaryCompare, 0},
        {1, "", "", vbBinaryCompare, 0},
        {2, "abc", "", vbBinaryCompare, 2},
        {3, "abc", "", vbTextCompare, 3},
        {4, "abc", "", vbBinaryCompare, 0},
        {9, "abc", "a", vbBinaryCompare, 0},
        {2, "é€x", "x", vbBinaryCompare, 3},
        {1, "é€x", "€X", vbTextCompare, 2},
        {1, "\u212A\u212Ax", "kX", vbTextCompare, 2},
        {2, "kk\u212A", "K", vbTextCompare, 2},
        {3, "kk\u212A", "K", vbTextCompare, 3},
        {1, "ß", "ss", vbTextCompare, 0},
        {1, "abc", "abcd", vbBinaryCompare, 0},
        {1, "é " + kNeedle, kNeedle, vbBinaryCompare, 3},
        {1, "é " + kNeedle, UCase(kNeedle), vbTextCompare, 3},
        {4, "é " + kNeedle, kNeedle, vbBinaryCompare, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text + " " + row.what);
        EXPECT_EQ(InStr(row.start, row.text, row.what, row.compare), row.position);
    }
    EXPECT_EQ(InStr("abc", "C", vbTextCompare), 3);
    EXPECT_EQ(attempt([] { (void)InStr(0, "a", "a"); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)InStr(-1, "a", "a"); }).Number, 5);
}

TEST(TextSearch, InStrRev) {
    struct Row {
        std::string text, what;
        int start;
        VbCompareMethod compare;
        int position;
    };
    const Row rows[] = {
        {"abcabc", "bc", -1, vbBinaryCompare, 5},
        {"abcabc", "bc", 5, vbBinaryCompare, 2},
        {"abcabc", "bc", 6, vbBinaryCompare, 5},
        {"abcabc", "bc", 1, vbBinaryCompare, 0},
        {"abc", "", -1, vbBinaryCompare, 3},
        {"abc", "", 2, vbBinaryCompare, 2},
        {"", "", -1, vbBinaryCompare, 0},
        {"", "a", -1, vbBinaryCompare, 0},
        {"abc", "a", 4, vbBinaryCompare, 0},
        {"abcB", "b", -1, vbTextCompare, 4},
        {"é€xé", "É", -1, vbTextCompare, 4},
        {"é€xé", "é", 3, vbBinaryCompare, 1},
        {"C:\\a\\b.vbp", "\\", -1, vbBinaryCompare, 5},
        {"é" + kNeedle + kNeedle, kNeedle, -1, vbBinaryCompare, 36},
        {"é" + kNeedle, kNeedle, 34, vbBinaryCompare, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text + " " + row.what);
        EXPECT_EQ(InStrRev(row.text, row.what, row.start, row.compare), row.position);
    }
    EXPECT_EQ(attempt([] { (void)InStrRev("a", "a", 0); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)InStrRev("a", "a", -2); }).Number, 5);
}

TEST(TextSearch, Split) {
    struct Row {
        std::string text, delimiter;
        int limit;
        VbCompareMethod compare;
        Pieces pieces;
    };
    const Row rows[] = {
        {"a,b,c", ",", -1, vbBinaryCompare, {"a", "b", "c"}},
        {"a,b,c", ",", 2, vbBinaryCompare, {"a", "b,c"}},
        {"a,b,c", ",", 1, vbBinaryCompare, {"a,b,c"}},
        {"a,b,c", ",", 0, vbBinaryCompare, {}},
        {"a,b,c", ",", 9, vbBinaryCompare, {"a", "b", "c"}},
        {"", ",", -1, vbBinaryCompare, {}},
        {",", ",", -1, vbBinaryCompare, {"", ""}},
        {"a,", ",", -1, vbBinaryCompare, {"a", ""}},
        {"a b", "", -1, vbBinaryCompare, {"a b"}},
        {"", "", -1, vbBinaryCompare, {}},
        {"1X2x3", "x", -1, vbBinaryCompare, {"1X2", "3"}},
        {"1X2x3", "x", -1, vbTextCompare, {"1", "2", "3"}},
        {"aaa", "aa", -1, vbBinaryCompare, {"", "a"}},
        {"éÉ\u212A.", "k", -1, vbTextCompare, {"éÉ", "."}},
        {"é" + kNeedle + "b", UCase(kNeedle), -1, vbTextCompare, {"é", "b"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text + " " + row.delimiter);
        EXPECT_EQ(Split(row.text, row.delimiter, row.limit, row.compare), row.pieces);
    }
    EXPECT_EQ(Split("a b"), (Pieces{"a", "b"}));
    EXPECT_EQ(attempt([] { (void)Split("a", ",", -2); }).Number, 5);
}

TEST(TextSearch, Join) {
    EXPECT_EQ(Join({}), "");
    EXPECT_EQ(Join({"a"}), "a");
    EXPECT_EQ(Join({"a", "b"}), "a b");
    EXPECT_EQ(Join({"a", "", "b"}, "--"), "a----b");
    EXPECT_EQ(Join({"a", "b"}, ""), "ab");
}

TEST(TextSearch, Replace) {
    struct Row {
        std::string text, what, by;
        int start, count;
        VbCompareMethod compare;
        std::string result;
    };
    const Row rows[] = {
        {"abab", "a", "x", 1, -1, vbBinaryCompare, "xbxb"}, {"abab", "a", "x", 2, -1, vbBinaryCompare, "bxb"},
        {"abab", "a", "x", 1, 1, vbBinaryCompare, "xbab"},  {"abab", "a", "x", 2, 0, vbBinaryCompare, "bab"},
        {"abab", "", "x", 3, -1, vbBinaryCompare, "ab"},    {"", "a", "x", 1, -1, vbBinaryCompare, ""},
        {"ab", "a", "x", 5, -1, vbBinaryCompare, ""},       {"aAa", "a", "", 1, -1, vbTextCompare, ""},
        {"aAa", "a", "", 1, -1, vbBinaryCompare, "A"},      {"aaa", "a", "aa", 1, -1, vbBinaryCompare, "aaaaaa"},
        {"é€É", "É", "e", 1, -1, vbTextCompare, "e€e"},     {"x\u212Ay", "K", "-", 1, -1, vbTextCompare, "x-y"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Replace(row.text, row.what, row.by, row.start, row.count, row.compare), row.result);
    }
    EXPECT_EQ(Replace("a.b", ".", ","), "a,b");
    EXPECT_EQ(attempt([] { (void)Replace("a", "a", "b", 0); }).Number, 5);
    EXPECT_EQ(attempt([] { (void)Replace("a", "a", "b", 1, -2); }).Number, 5);
}

TEST(TextSearch, Filter) {
    const Pieces pieces = {"Form", "form2", "Module", ""};
    EXPECT_EQ(Filter(pieces, "form"), (Pieces{"form2"}));
    EXPECT_EQ(Filter(pieces, "form", true, vbTextCompare), (Pieces{"Form", "form2"}));
    EXPECT_EQ(Filter(pieces, "form", false, vbTextCompare), (Pieces{"Module", ""}));
}

TEST(TextSearch, StrComp) {
    struct Row {
        std::string a, b;
        int binary, text;
    };
    const Row rows[] = {{"a", "a", 0, 0},  {"A", "a", -1, 0}, {"b", "A", 1, 1},
                        {"", "a", -1, -1}, {"é", "É", 1, 0},  {"z", "é", -1, -1}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.a + row.b);
        EXPECT_EQ(StrComp(row.a, row.b), row.binary);
        EXPECT_EQ(StrComp(row.a, row.b, vbTextCompare), row.text);
    }
}

TEST(TextSearch, TakesLinearTime) {
    const std::string text(1 << 20, 'a'), what = std::string(1 << 15, 'a') + "b";
    EXPECT_EQ(InStr(text, what), 0);
    EXPECT_EQ(InStr(text, "b" + std::string(1 << 15, 'a')), 0);
    EXPECT_EQ(InStrRev(text, what), 0);
    EXPECT_EQ(Split(text, std::string(1 << 10, 'a')).size(), 1025U);
}
