#include "Host/files/code_file.h"
#include "tests/support/errors.h"

using basic::CodePage;
using host::attributeValue;
using host::CodeText;
using host::LineEnd;
using host::splitSource;
using test::errorOf;
using namespace std::string_literals;

namespace {

const auto kClassHead = "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\n"s;
const auto kClassAttributes = "Attribute VB_Name = \"clsOne\"\r\nAttribute VB_Exposed = False\r\n"
                              "Attribute VB_Ext_KEY = \"SavedWithClassBuilder\" ,\"Yes\"\r\n"s;

CodeText codeOf(std::string_view code) { return {code, CodePage::windows1252(), LineEnd::CrLf}; }

void expectWhole(const std::string& bytes) {
    const auto parts = splitSource(bytes);
    EXPECT_EQ(std::string(parts.designer) + std::string(parts.attributes) + codeOf(parts.code).bytes(), bytes);
}

} // namespace

TEST(CodeFile, SplitsAfterTheHeader) {
    const auto bytes = kClassHead + kClassAttributes + "Option Explicit\r\n";
    const auto parts = splitSource(bytes);
    EXPECT_EQ(parts.designer, kClassHead);
    EXPECT_EQ(parts.attributes, kClassAttributes);
    EXPECT_EQ(parts.code, "Option Explicit\r\n");
    EXPECT_EQ(attributeValue(parts.attributes, "VB_NAME"), "clsOne");
    EXPECT_EQ(attributeValue(parts.attributes, "VB_Base"), std::nullopt);
}

TEST(CodeFile, TheHeaderIsOptional) {
    EXPECT_EQ(splitSource("Attribute VB_Name = \"a\"\r\nx\r\n").code, "x\r\n");
    EXPECT_EQ(splitSource("Sub Main()\r\nEnd Sub").code, "Sub Main()\r\nEnd Sub");
    EXPECT_EQ(splitSource("Version = 3\r\n").designer, "");
    EXPECT_EQ(splitSource("").code, "");
}

TEST(CodeFile, TheRunOfAttributesIsOpenEnded) {
    const auto run =
        "Attribute VB_Name = \"clsTemplate\"\r\nAttribute VB_Base = \"0{FCFB3D2A-A0FA-1068-A738-08002B3371B5}\"\r\n"
        "Attribute VB_Customizable = False\r\nAttribute VB_Anything = 1\r\n"s;
    const auto bytes = kClassHead + run + "'\r\n";
    EXPECT_EQ(splitSource(bytes).code, "'\r\n");
}

TEST(CodeFile, ObjectLinesAndNestedBlocksBelongToTheHeader) {
    const auto designer =
        "VERSION 5.00\r\nObject = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"A.OCX\"\r\n"
        "Object = \"*\\ADropStack.vbp\"\r\nBegin VB.Form a \r\n   BeginProperty Font \r\n   EndProperty\r\n"
        "   Begin VB.Frame b \r\nEnd\r\nEnd\r\n"s;
    const auto bytes = designer + "Attribute VB_Name = \"a\"\r\nEnd\r\n";
    const auto parts = splitSource(bytes);
    EXPECT_EQ(parts.designer, designer);
    EXPECT_EQ(parts.code, "End\r\n");
    EXPECT_TRUE(parts.balanced);
}

TEST(CodeFile, ATruncatedHeaderIsReportedAndHasNoCode) {
    const auto parts = splitSource("VERSION 5.00\r\nBegin VB.Form a \r\n   Caption =   \"x");
    EXPECT_FALSE(parts.balanced);
    EXPECT_EQ(parts.code, "");
}

TEST(CodeFile, PreservesAnyBytes) {
    expectWhole("");
    expectWhole("\0\0\0\r\n\r\n"s);
    expectWhole("VERSION 5.00");
    expectWhole("VERSION 5.00\r\nBegin VB.Form a \r\nEnd\r\nEnd\r\nEnd");
    expectWhole("\xEF\xBB\xBFVERSION 1.0 CLASS\r\nBEGIN\r\nEND\r\nx\n");
    expectWhole("a\rb\nc\r\nd");
    std::string noise;
    for (int i = 0; i < 1661; ++i) noise += char(i * 7919 >> 3);
    expectWhole(noise);
}

TEST(CodeFile, HidesAttributesInsideTheCodeAndDoesNotCountThem) {
    const auto code =
        codeOf("Sub A()\r\nAttribute A.VB_Description = \"x\"\r\nAttribute A.VB_UserMemId = 0\r\nx\r\nEnd Sub\r\n"
               "Dim o\r\nAttribute o.VB_VarHelpID = -1\r\n");
    EXPECT_EQ(code.count(), 4u);
    EXPECT_EQ(code.line(2), "x");
    EXPECT_EQ(code.physicalLine(2), 4u);
    EXPECT_EQ(code.physicalLine(4), 6u);
    EXPECT_EQ(code.physicalLine(5), 8u);
    EXPECT_EQ(code.windowLine(1), 1u);
    EXPECT_EQ(code.windowLine(3), 1u);
    EXPECT_EQ(code.windowLine(4), 2u);
    EXPECT_EQ(code.windowLine(7), 4u);
    EXPECT_EQ(code.windowLine(8), 5u);
}

TEST(CodeFile, CountsLinesWithNulsAndLoneReturns) {
    const auto code = codeOf("a\rb\nc\r\n"s + std::string(142, '\0') + "\r\n\r\n");
    EXPECT_EQ(code.count(), 5u);
    EXPECT_EQ(code.line(2), "b");
    EXPECT_EQ(codeOf("x").count(), 1u);
    EXPECT_EQ(codeOf("").count(), 0u);
}

TEST(CodeFile, InsertsOnlyTheNewLines) {
    auto code = codeOf("a\nb");
    code.insert(2, "x\ny");
    EXPECT_EQ(code.bytes(), "a\nx\r\ny\r\nb");
    code.insert(5, "z");
    EXPECT_EQ(code.bytes(), "a\nx\r\ny\r\nb\r\nz\r\n");
    auto empty = codeOf("");
    empty.insert(1, "Option Explicit");
    EXPECT_EQ(empty.bytes(), "Option Explicit\r\n");
    empty.insert(1, "");
    EXPECT_EQ(empty.bytes(), "\r\nOption Explicit\r\n");
}

TEST(CodeFile, AHiddenAttributeStaysAfterItsHead) {
    auto code = codeOf("Sub A()\r\nAttribute A.VB_Description = \"x\"\r\nEnd Sub\r\n");
    code.insert(2, "y");
    EXPECT_EQ(code.bytes(), "Sub A()\r\nAttribute A.VB_Description = \"x\"\r\ny\r\nEnd Sub\r\n");
    code.replace(1, "Sub A() ' note");
    EXPECT_EQ(code.bytes(), "Sub A() ' note\r\nAttribute A.VB_Description = \"x\"\r\ny\r\nEnd Sub\r\n");
    code.remove(1, 2);
    EXPECT_EQ(code.bytes(), "End Sub\r\n");
}

TEST(CodeFile, ReplacesAndRemovesOnlyTheseLines) {
    auto code = codeOf("a\nb\rc");
    code.replace(2, "x\r\ny");
    EXPECT_EQ(code.bytes(), "a\nx\r\ny\rc");
    code.remove(4, 1);
    EXPECT_EQ(code.bytes(), "a\nx\r\ny\r");
    code.remove(1, 3);
    EXPECT_EQ(code.bytes(), "");
}

TEST(CodeFile, RefusesACharacterThatTheCodePageLacks) {
    auto code = codeOf("a\r\n");
    EXPECT_EQ(errorOf([&] { code.insert(1, "日本"); }), 5);
    EXPECT_EQ(errorOf([&] { code.replace(1, "日本"); }), 5);
    EXPECT_EQ(code.bytes(), "a\r\n");
}

TEST(CodeFile, CountsTheLinesOfALongContinuation) {
    std::string statement = "x = 1";
    for (int i = 0; i < 24; ++i) statement += " + _\r\n    1";
    EXPECT_EQ(codeOf(statement + "\r\n").count(), 25u);
}
