#include "Host/files/form_file.h"
#include <gtest/gtest.h>
#include <map>
#include <random>

using host::FormFile;

namespace {

/// A form with lines of every kind, to check that edits change only their own line.
std::string formWithOddLines() {
    return "VERSION 5.00\r\nBegin VB.Form A \r\n   'a remark\r\n   Caption         =   \"A\"\r\n\r\n"
           "   BeginProperty Font \r\n      Name            =   \"Tahoma\"\r\n   EndProperty\r\n   odd line\r\n"
           "   Begin VB.Label L \r\n   End\r\nEnd\r\nAttribute VB_Name = \"A\"\r\nDim x\r\n";
}

std::map<std::string, std::string> propertiesOf(const host::FormBlock& block) {
    std::map<std::string, std::string> found;
    block.eachProperty([&](std::string_view key, std::string_view literal) { found[std::string(key)] = literal; });
    return found;
}

} // namespace

TEST(FormEdits, AnySequenceOfEditsReadsBackAsMade) {
    const std::string keys[] = {"BackColor", "Caption", "Enabled", "Height", "Tag", "Zebra", "_ExtentX", "Größe"};
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        auto form = FormFile::parse(formWithOddLines());
        std::map<std::string, std::string> expected{{"Caption", "\"A\""}};
        for (int step = 0; step < 30; ++step) {
            const auto& key = keys[random() % std::size(keys)];
            const auto literal = std::to_string(random() % 3);
            const bool there = expected.count(key) > 0;
            if (random() % 3 == 0) {
                EXPECT_EQ(form.root()->remove(key), there);
                expected.erase(key);
            } else {
                EXPECT_EQ(form.root()->set(key, literal, "word"), !there || expected[key] != literal);
                expected[key] = literal;
            }
        }
        ASSERT_EQ(propertiesOf(*form.root()), expected);
        const auto again = FormFile::parse(form.text());
        ASSERT_EQ(propertiesOf(*again.root()), expected);
        ASSERT_EQ(again.text(), form.text());
        ASSERT_EQ(again.code(), "Dim x\r\n");
        ASSERT_TRUE(again.root()->properties("Font"));
        ASSERT_EQ(again.problems().size(), 1U) << "the odd line is still there";
    }
}

TEST(FormEdits, UndoingAnEditRestoresTheBytes) {
    const auto text = formWithOddLines();
    auto form = FormFile::parse(text);
    for (const std::string key : {"Aardvark", "Caption2", "Zebra", "_Version"}) {
        form.root()->set(key, "1");
        form.root()->remove(key);
    }
    form.root()->set("Caption", "\"B\"");
    form.root()->set("Caption", "\"A\"");
    EXPECT_EQ(form.text(), text);
}

TEST(FormEdits, TheLastOfTwoEqualPropertiesCounts) {
    auto form = FormFile::parse(
        "VERSION 5.00\r\nBegin VB.Form A \r\n   Tag             =   1\r\n   TAG             =   2\r\nEnd\r\n");
    EXPECT_EQ(form.root()->literal("Tag"), "2");
    form.root()->set("Tag", "3");
    EXPECT_EQ(form.text(),
              "VERSION 5.00\r\nBegin VB.Form A \r\n   Tag             =   1\r\n   TAG             =   3\r\nEnd\r\n");
}

TEST(FormEdits, LookingUpEveryPropertyOfALargeBlockIsFast) {
    std::string text = "VERSION 5.00\r\nBegin VB.Form A \r\n";
    constexpr int kMany = 100'000;
    for (int i = 0; i < kMany; ++i) text += "   Key" + std::to_string(i) + " = " + std::to_string(i) + "\r\n";
    auto form = FormFile::parse(text + "End\r\n");
    for (int i = 0; i < kMany; ++i) {
        ASSERT_EQ(form.root()->literal("key" + std::to_string(i)), std::to_string(i));
        ASSERT_TRUE(form.root()->set("KEY" + std::to_string(i), "-1"));
    }
}
