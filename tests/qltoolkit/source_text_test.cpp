#include "Components/QLToolkit/check.h"
#include "Components/QLToolkit/code/line_cursor.h"
#include "Components/QLToolkit/source/encoding.h"
#include "Components/QLToolkit/source/source_text.h"
#include "tests/qltoolkit/ast_dump.h"
#include "tests/support/temp_folder.h"
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using qltoolkit::HeaderState;
using qltoolkit::LineCursor;
using qltoolkit::Location;
using qltoolkit::Pos;
using qltoolkit::SourceText;
using qltoolkit::dump::Parsed;

TEST(SourceText, LinesEndAtCrLfLfOrALoneCr) {
    const SourceText file{"a.bas", "one\r\ntwo\nthree\rfour\r\r\n\nlast"};
    ASSERT_EQ(file.lineCount(), 7u);
    const char* expected[] = {"one", "two", "three", "four", "", "", "last"};
    for (unsigned i = 0; i < 7; ++i) EXPECT_EQ(file.line(i + 1), expected[i]) << i;
    EXPECT_EQ(SourceText("a.bas", "").lineCount(), 0u);
    EXPECT_EQ(SourceText("a.bas", "x\r\n").lineCount(), 1u);
    EXPECT_EQ(SourceText("a.bas", "x\r").lineCount(), 1u);
    EXPECT_EQ(SourceText("a.bas", "\n\n").lineCount(), 2u);
}

TEST(SourceText, ColumnsCountCharacters) {
    EXPECT_EQ(SourceText("a.bas", "ab\r\ncd").locate(5), (Location{2, 2}));
    EXPECT_EQ(SourceText("a.bas", "x = \xE9\xE9 y").locate(7), (Location{1, 8}));
    EXPECT_EQ(SourceText("a.bas", "' \xC3\xA9\xC3\xA9 y").locate(7), (Location{1, 6})) << "UTF-8";
    EXPECT_EQ(SourceText("a.bas", "' \x83\x5C\x83\x5C y", basic::CodePage(932)).locate(7), (Location{1, 6}))
        << "two bytes";
    EXPECT_EQ(SourceText("a.bas", "ab\r\n").locate(4), (Location{1, 5}));
}

TEST(SourceText, DetectsTheEncodingOfEachFile) {
    EXPECT_EQ(SourceText("a.bas", "' caf\xC3\xA9").codePage().number(), 65001);
    EXPECT_EQ(SourceText("a.bas", "' caf\xE9").codePage().number(), 1252);
    EXPECT_EQ(SourceText("a.bas", "' cafe").codePage().number(), 1252);
    EXPECT_EQ(SourceText("a.bas", "\xEF\xBB\xBFx = 1").codePage().number(), 65001);
    EXPECT_EQ(Parsed("\xEF\xBB\xBF"
                     "Dim a")
                  .diagnostics(),
              "");
    EXPECT_EQ(SourceText("a.bas", "x\xE9").decode("x\xE9"), "x\xC3\xA9");
}

TEST(SourceText, FindsWhereTheCodeBegins) {
    const std::string form =
        "VERSION 5.00\r\nObject = \"{0}#1.0#0\"; \"X.OCX\"\r\nBegin VB.Form F \r\n   BeginProperty Font \r\n"
        "   EndProperty\r\n   Begin VB.Label L \r\nCaption = \"End\"\r\nEnd\r\nEnd\r\nAttribute VB_Name = \"F\"\r\n"
        "Attribute VB_Exposed = False\r\nOption Explicit\r\n";
    const SourceText f{"F.frm", form};
    EXPECT_EQ(f.header(), HeaderState::Complete);
    EXPECT_EQ(f.headerBlock(), 3u);
    EXPECT_EQ(f.attributesBegin(), 10u);
    EXPECT_EQ(f.codeBegin(), 12u);
    EXPECT_EQ(f.line(f.codeBegin()), "Option Explicit");

    const SourceText c{"C.cls",
                       "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\nAttribute VB_Name = \"C\"\nDim a\n"};
    EXPECT_EQ(c.codeBegin(), 6u);
    EXPECT_EQ(SourceText("M.bas", "Attribute VB_Name = \"M\"\nDim a").codeBegin(), 2u);
    EXPECT_EQ(SourceText("M.bas", "Dim a").codeBegin(), 1u);
    EXPECT_EQ(SourceText("M.bas", "").codeBegin(), 1u);
    EXPECT_EQ(SourceText("F.frm", "VERSION 5.00\nBegin VB.Form F \n").header(), HeaderState::Unclosed);
}

TEST(SourceText, NumbersLinesLikeTheCodeWindow) {
    const Parsed p{
        "VERSION 1.0 CLASS\nBEGIN\nEND\nAttribute VB_Name = \"C\"\nDim a\nAttribute a.VB_VarHelpID = -1\nDim b\n",
        "C.cls"};
    const auto& m = *p.result.module;
    EXPECT_EQ(m.codeLine(4), 0u);
    EXPECT_EQ(m.codeLine(5), 1u);
    EXPECT_EQ(m.codeLine(6), 0u);
    EXPECT_EQ(m.codeLine(7), 2u);
}

// ---------------------------------------------------------------- invalid files

TEST(CheckSource, ReportsFilesThatAreNotVb) {
    const auto numbers = [](const char* name, std::string bytes) {
        std::string text;
        for (const auto& d : qltoolkit::checkSource(name, std::move(bytes)).diagnostics)
            text += fmt::format("{}:{} ", d.line, d.number);
        return text;
    };
    EXPECT_EQ(numbers("Load.ctl", "LOAD DATA\nINFILE *\nINTO TABLE x\n"), "0:1005 ");
    EXPECT_EQ(numbers("Old.frm", "Dim a\n"), "0:1005 ");
    EXPECT_EQ(numbers("F.frm", "VERSION 5.00\nBegin VB.Form F \n   Caption = \"x\"\n"), "2:1007 ");
    EXPECT_EQ(numbers("C.cls", "Option Explicit\n"), "0:1008 ");
    EXPECT_EQ(numbers("C.cls", "Attribute VB_Name = \"C\"\nOption Explicit\n"), "");
    EXPECT_EQ(numbers("M.bas", "Option Explicit\n"), "");
    EXPECT_EQ(numbers("M.bas", ""), "");
    EXPECT_EQ(numbers("Notes.txt", "hello"), "0:1006 ");
    std::string random;
    for (unsigned i = 0, x = 1; i < 2000; ++i) random += static_cast<char>((x = x * 1103515245 + 12345) >> 16);
    EXPECT_EQ(numbers("C.cls", random), "0:1004 ");
    EXPECT_EQ(numbers("M.bas", std::string("\xFF\xFE"
                                           "D\0i\0m\0",
                                           8)),
              "0:1004 ");
}

TEST(CheckSource, IgnoresNulsAfterTheCode) {
    const auto r = qltoolkit::checkSource("M.bas", "Sub A()\r\nEnd Sub\r\n" + std::string(142, '\0') + "\r\n\r\n");
    EXPECT_THAT(r.diagnostics, testing::IsEmpty());
    EXPECT_EQ(qltoolkit::checkSource("M.bas", std::string("Dim\0a\nDim\x1A", 10)).errors, 1u);
}

TEST(FailedRead, ReportsWhatTheFileIs) {
    const test::TempFolder folder;
    const auto diagnostic = [](const std::string& path) {
        const auto result = qltoolkit::failedRead(path, "out of order");
        EXPECT_EQ(std::pair(result.errors, result.lines), std::pair(std::size_t(1), 0u));
        EXPECT_EQ(result.diagnostics.size(), 1u);
        return result.diagnostics.at(0);
    };
    const auto missing = diagnostic("/nowhere/M.bas");
    EXPECT_EQ(missing.number, 1000);
    EXPECT_EQ(missing.file, "/nowhere/M.bas");
    EXPECT_EQ(missing.text, "The file does not exist.");
    EXPECT_EQ(missing.line, 0u);
    EXPECT_EQ(diagnostic(folder.path()).number, 1002);
    const auto unreadable = diagnostic(folder.write("M.bas", ""));
    EXPECT_EQ(unreadable.number, 1001);
    EXPECT_THAT(unreadable.text, testing::HasSubstr("out of order"));
    const auto file = folder / "M.bas";
    std::filesystem::resize_file(file, qltoolkit::kMaxSourceBytes);
    EXPECT_EQ(diagnostic(file).number, 1001);
    std::filesystem::resize_file(file, qltoolkit::kMaxSourceBytes + 1);
    EXPECT_EQ(diagnostic(file).number, 1003);
    EXPECT_EQ(diagnostic("/dev/null").number, 1001);
}

TEST(CheckSource, RefusesBytesThatAreTooMany) {
    const auto numberOf = [](std::size_t size) {
        const auto result = qltoolkit::checkSource("M.bas", std::string(size, '\n'));
        return result.diagnostics.empty() ? 0 : result.diagnostics[0].number;
    };
    EXPECT_EQ(numberOf(1000), 0);
    EXPECT_EQ(numberOf(qltoolkit::kMaxSourceBytes + 1), 1003);
}

TEST(TypographicMarks, AreBlanksQuotationMarksAndPunctuation) {
    const auto isMark = [](char32_t c) {
        const char utf8[] = {char(0xE0 | c >> 12), char(0x80 | (c >> 6 & 0x3F)), char(0x80 | (c & 0x3F))};
        const char two[] = {char(0xC0 | c >> 6), char(0x80 | (c & 0x3F))};
        return qltoolkit::hasTypographicMark(c < 0x800 ? std::string_view(two, 2) : std::string_view(utf8, 3));
    };
    for (const char32_t mark : {0xA0, 0xAB, 0xBB, 0x2000, 0x201C, 0x206F, 0x3000, 0x300C, 0x303F, 0xFF01, 0xFF0F,
                                0xFF1A, 0xFF1F, 0xFF5B, 0xFF65})
        EXPECT_TRUE(isMark(mark)) << std::hex << std::uint32_t(mark);
    for (const char32_t other : {0xA1, 0xAA, 0xAC, 0xBA, 0xBC, 0x1FFF, 0x2070, 0x2FFF, 0x3005, 0x3007, 0x3040, 0xFF00,
                                 0xFF10, 0xFF19, 0xFF20, 0xFF5A, 0xFF66})
        EXPECT_FALSE(isMark(other)) << std::hex << std::uint32_t(other);
    EXPECT_FALSE(qltoolkit::hasTypographicMark("plain"));
}

TEST(LineCursor, AgreesWithTheSearchWhereverPositionsLead) {
    const SourceText source{"a.bas", "first\r\n\n" + std::string(40, '\n') + "third\rlast"};
    LineCursor ascending{source};
    for (Pos at = 0; at <= source.size(); ++at) EXPECT_EQ(ascending.lineOf(at), source.lineOf(at)) << at;
    LineCursor jumping{source};
    for (Pos at = 0; at <= source.size(); ++at) {
        const Pos other = at * 31 % source.size();
        EXPECT_EQ(jumping.lineOf(other), source.lineOf(other)) << other;
    }
}
