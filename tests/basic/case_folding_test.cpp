#include "Basic/case_folding.h"
#include <gtest/gtest.h>
#include <map>
#include <unordered_map>

using namespace basic;

TEST(CaseFolding, ComparesByFoldedCharacters) {
    struct Row {
        std::string a, b;
        int order;
    };
    const Row rows[] = {
        {"", "", 0},         {"", "a", -1},           {"abc", "ABC", 0}, {"abc", "ABD", -1},    {"abc", "AB", 1},
        {"É", "é", 0},       {"ПРИВЕТ", "привет", 0}, {"ς", "Σ", 0},     {"ß", "SS", 1},        {"\u212A", "k", 0},
        {"İ", "i", 1},       {"I", "ı", -1},          {"_", "A", -1},    {"_", "a", -1},        {"Z", "é", -1},
        {"\xC3", "\xC3", 0}, {"\xC3", "\xC4", -1},    {"😀", "\xFF", -1}, {"a\xFF", "A\xFF", 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.a + " and " + row.b);
        const auto order = compareNoCase(row.a, row.b);
        EXPECT_EQ(order < 0 ? -1 : order > 0 ? 1 : 0, row.order);
        EXPECT_EQ(equalNoCase(row.a, row.b), row.order == 0);
        EXPECT_EQ(foldCase(row.a) == foldCase(row.b), row.order == 0);
        EXPECT_EQ(NoCaseHash{}(row.a) == NoCaseHash{}(row.b), row.order == 0);
        const auto reverse = compareNoCase(row.b, row.a);
        EXPECT_EQ(reverse < 0 ? 1 : reverse > 0 ? -1 : 0, row.order);
    }
}

TEST(CaseFolding, FoldsToLowerCase) {
    EXPECT_EQ(foldCase("Grüße, ÀÉ [Z@]"), "grüße, àé [z@]");
    EXPECT_EQ(foldCase(std::string("A\0B", 3)), std::string("a\0b", 3));
}

TEST(CaseFolding, FindsPrefixes) {
    struct Row {
        std::string text, beginning;
        bool begins;
    };
    const Row rows[] = {{"Module=x", "MODULE", true},
                        {"Mod", "Module", false},
                        {"", "", true},
                        {"x", "", true},
                        {"", "x", false},
                        {"Élan", "éL", true},
                        {"ab", "b", false},
                        {"\u212Aa", "ka", true}};
    for (const Row& row : rows) EXPECT_EQ(startsWithNoCase(row.text, row.beginning), row.begins) << row.text;
}

TEST(CaseFolding, WorksInContainers) {
    std::unordered_map<std::string, int, NoCaseHash, NoCaseEqual> hashed{{"Straße", 1}};
    EXPECT_EQ(hashed.find(std::string_view("STRAßE"))->second, 1);
    std::map<std::string, int, NoCaseLess> ordered{{"b", 1}, {"A", 2}};
    EXPECT_EQ(ordered.begin()->first, "A");
    EXPECT_EQ(ordered.find(std::string_view("B"))->second, 1);
}
