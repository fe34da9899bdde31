#include "Host/files/property_value.h"
#include <gtest/gtest.h>

using host::parsePropertyValue;
using Kind = host::PropertyValue::Kind;

namespace {
struct NumberCase {
    const char* literal;
    Kind kind;
    double number;
};
} // namespace

TEST(PropertyValue, Numbers) {
    const NumberCase cases[] = {
        {"-90", Kind::Integer, -90},
        {"0", Kind::Integer, 0},
        {"2147483647", Kind::Integer, 2147483647.0},
        {"8.25", Kind::Float, 8.25},
        {"8,25", Kind::Float, 8.25},
        {"1e-4", Kind::Float, 1e-4},
        {"1.19070e5", Kind::Float, 119070},
        {"+5", Kind::Integer, 5},
        {"&H00C0C0C0&", Kind::Colour, 0xC0C0C0},
        {"&H8000000F&", Kind::Colour, -2147483633.0},
        {"&hff", Kind::Colour, 255},
    };
    for (const auto& c : cases) {
        const auto v = parsePropertyValue(c.literal);
        EXPECT_EQ(v.kind, c.kind) << c.literal;
        EXPECT_EQ(v.number, c.number) << c.literal;
        EXPECT_EQ(v.text, c.literal);
    }
}

TEST(PropertyValue, StringsAndResources) {
    EXPECT_EQ(parsePropertyValue(R"("say ""hi"" 'now'")").string, "say \"hi\" 'now'");
    EXPECT_EQ(parsePropertyValue(R"("")").kind, Kind::String);
    EXPECT_EQ(parsePropertyValue(R"("""")").string, "\"");
    const auto plain = parsePropertyValue(R"("Form1.frx":0442)");
    EXPECT_EQ(plain.kind, Kind::Resource);
    EXPECT_EQ(plain.resource.file, "Form1.frx");
    EXPECT_EQ(plain.resource.offset, 0x442U);
    EXPECT_FALSE(plain.resource.isString);
    const auto string = parsePropertyValue(R"($"Form1.frx":10A442)");
    EXPECT_TRUE(string.resource.isString);
    EXPECT_EQ(string.resource.offset, 0x10A442U);
}

TEST(PropertyValue, ShortcutsAndGuids) {
    for (const char* shortcut : {"^S", "{F5}", "^{F4}", "+{F3}", "+^{F1}", "{DEL}"})
        EXPECT_EQ(parsePropertyValue(shortcut).kind, Kind::Shortcut) << shortcut;
    EXPECT_EQ(parsePropertyValue("{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}").kind, Kind::Guid);
    EXPECT_EQ(parsePropertyValue("{831FDD16-0C5C-11D2-A9FC-0000F8754DAG}").kind, Kind::Shortcut);
}

TEST(PropertyValue, AnInvalidLiteralKeepsItsText) {
    for (const char* odd : {"\"open",
                            "$",
                            "$\"a\"",
                            "\"a.frx\":",
                            "\"a.frx\":zz",
                            "\"a.frx\":12 x",
                            "&",
                            "&H",
                            "&H123456789&",
                            "1.2.3",
                            "-",
                            "+",
                            "1e999",
                            "nan",
                            "inf",
                            "0x10",
                            "^",
                            "word",
                            "\"a\"b",
                            "1,2,3",
                            "\"a.frx\":FFFFFFFFFFFFFFFFFF"}) {
        const auto v = parsePropertyValue(odd);
        EXPECT_EQ(v.kind, Kind::Other) << odd;
        EXPECT_EQ(v.text, odd);
    }
    EXPECT_EQ(parsePropertyValue("").kind, Kind::Empty);
}

TEST(PropertyValue, LiteralsEndBeforeTheirComment) {
    EXPECT_EQ(host::literalLength("0   'False"), 1U);
    EXPECT_EQ(host::literalLength("\"it's\"  'x"), 6U);
    EXPECT_EQ(host::literalLength("$\"it's.frx\":0000 "), 16U);
    EXPECT_EQ(host::literalLength("\"open 'x"), 8U);
    EXPECT_EQ(host::literalLength("'only"), 0U);
    EXPECT_EQ(host::literalLength(""), 0U);
}

TEST(PropertyValue, Writes) {
    EXPECT_EQ(host::stringLiteral("say \"hi\""), R"("say ""hi""")");
    EXPECT_EQ(host::integerLiteral(-90), "-90");
    EXPECT_EQ(host::colourLiteral(0xC0C0C0), "&H00C0C0C0&");
    EXPECT_EQ(host::resourceLiteral({"F.frx", 0x44A, false}), "\"F.frx\":044A");
    EXPECT_EQ(host::resourceLiteral({"F.frx", 0x1044A, true}), "$\"F.frx\":1044A");
}

TEST(PropertyValue, SinglesHaveAtMostSevenDigits) {
    EXPECT_EQ(host::singleLiteral(8.25), "8.25");
    EXPECT_EQ(host::singleLiteral(2400), "2400");
    EXPECT_EQ(host::singleLiteral(-0.0), "0");
    EXPECT_EQ(host::singleLiteral(0.1), "0.1");
    EXPECT_EQ(host::singleLiteral(1.0 / 3), "0.3333333");
}
