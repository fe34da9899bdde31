// Names in the code pages of East Asia, in which a character's second byte may be that of an ASCII letter or sign.
#include "Basic/utf16.h"
#include "Components/QLToolkit/insight/renaming.h"
#include "Components/QLToolkit/lexer/name_characters.h"
#include "tests/qltoolkit/checked_program.h"
#include "tests/qltoolkit/insight_program.h"
#include "tests/qltoolkit/referenced_program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Names in one of the pages.
struct Names {
    int page;
    std::string first, second, third; ///< the third one in letters of both cases
};

const Names kPages[] = {
    {932, "表示ソ", "ゾーン_構", "Ａｂ表"},
    {936, "变量", "計算_１", "Ａｂ值"},
    {949, "변수", "값_뢔", "Ａｂ값"},
    {950, "功能", "許可_表", "Ａｂ值"},
};

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

/// The text with the names of a page for A1, B1 and C1; c1 is C1 in other letter cases.
std::string with(const Names& names, std::string text) {
    text = replaced(std::move(text), "A1", names.first);
    text = replaced(std::move(text), "B1", names.second);
    text = replaced(std::move(text), "C1", names.third);
    return replaced(std::move(text), "c1", replaced(replaced(names.third, "Ａ", "ａ"), "ｂ", "Ｂ"));
}

test::CheckedProgram programOf(const Names& names, const std::string& module, const std::string& source = "") {
    const basic::CodePage page(names.page);
    test::CheckedProgram program;
    program.page = page;
    program.text("Module1.bas", page.encode(with(names, "Attribute VB_Name = \"Module1\"\n" + module)));
    if (!source.empty())
        program.text("Class1.cls", page.encode(with(names, "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n"
                                                           "Attribute VB_Name = \"A1\"\n" +
                                                               source)));
    return program;
}

} // namespace

TEST(DoubleByteNames, NameAllThatHasNames) {
    const char* const module = "Option Explicit\n"
                               "#Const A1 = 1\n"
                               "Private Const B1 As Long = 2\n"
                               "Private Type C1\n  A1 As Long\n  [B1] As String\nEnd Type\n"
                               "Private Enum A1B1\n  C1B1 = 3\nEnd Enum\n"
                               "#If A1 Then\n"
                               "Public Function A1C1(ByVal B1A1 As Long, Optional [C1] As Long) As Long\n"
                               "  Dim record As c1, [A1] As New A1, text$, C1B1%\n"
                               "  On Error GoTo B1C1\n"
                               "  record.A1 = B1 + B1A1 + c1: record.B1 = \"A1\" ' A1\n"
                               "  Set [A1].C1 = A1\n  A1.B1\n  A1C1 = c1B1%\n"
                               "  GoTo B1C1\n"
                               "B1C1:\n"
                               "End Function\n#End If\n"
                               "Sub Main()\n  A1C1 B1A1:=2, c1:=A1B1.c1B1\nEnd Sub\n";
    const char* const source = "Public Event B1A1(A1 As Long)\nPrivate WithEvents A1C1 As A1\n"
                               "Public Property Set c1(ByVal A1 As Object)\n  RaiseEvent B1A1(1)\nEnd Property\n"
                               "Public Sub B1()\n  Me.B1\nEnd Sub\n"
                               "Private Sub A1C1_B1A1(A1 As Long)\n  A1 = 2\nEnd Sub\n";
    for (const auto& names : kPages) {
        auto program = programOf(names, module, source);
        EXPECT_THAT(program.messages(), IsEmpty()) << names.page;
        EXPECT_TRUE(program.compiled().code) << names.page;
    }
}

TEST(DoubleByteNames, AppearInMessagesWithTheirColumns) {
    for (const auto& names : kPages) {
        auto program = programOf(names, "Option Explicit\nSub Main()\n  A1 = 1 + B1\nEnd Sub\n");
        const auto found = program.results()[0].diagnostics;
        ASSERT_EQ(found.size(), 2u) << names.page;
        EXPECT_NE(found[0].text.find(names.first), std::string::npos) << found[0].text;
        EXPECT_EQ(found[0].column, 3u);
        EXPECT_NE(found[1].text.find(names.second), std::string::npos) << found[1].text;
        EXPECT_EQ(found[1].column, 10u + basic::toUtf16(names.first).size()) << names.page;
    }
}

TEST(DoubleByteNames, HaveNoSignsOfTheirPage) {
    for (const auto& [page, sign] :
         {std::pair(932, "＋"), std::pair(936, "，"), std::pair(949, "、"), std::pair(950, "，")}) {
        auto program = programOf({page, sign, "", ""}, "Sub Main()\n  xA1y = 1\nEnd Sub\n");
        EXPECT_THAT(program.messages(), ElementsAre("2:3 1100")) << page;
    }
}

TEST(DoubleByteNames, BeginWithNoDigits) {
    for (const auto& names : kPages) {
        auto first = programOf({names.page, "１", "", ""}, "Private A1x As Long\n");
        auto later = programOf({names.page, "１", "", ""}, "Private xA1 As Long\n");
        EXPECT_THAT(first.messages(), testing::Contains("1:9 1100")) << names.page;
        EXPECT_THAT(later.messages(), IsEmpty()) << names.page;
    }
}

// MS-VBAL 3.3.5.1.1 to 3.3.5.1.4.
TEST(DoubleByteNames, HaveTheCharactersOfTheLanguage) {
    using qltoolkit::isNameCharacter;
    const auto both = [](int page, unsigned code) {
        return isNameCharacter(page, code, true) && isNameCharacter(page, code, false);
    };
    for (const auto code : {0xA6u, 0xDFu, 0x8141u, 0x8152u, 0x815Du, 0x8198u, 0x8260u, 0x889Fu, 0xFC4Bu})
        EXPECT_TRUE(both(932, code)) << std::hex << code;
    for (const auto code : {0x80u, 0x8140u, 0x8143u, 0x8151u, 0x815Eu, 0x8197u, 0x8320u})
        EXPECT_FALSE(isNameCharacter(932, code, false)) << std::hex << code;
    for (const auto code : {0xA1A2u, 0xA1ACu, 0xA2B1u, 0xA3C1u, 0xA3FAu, 0xA4A1u, 0xFE4Fu, 0x8140u})
        EXPECT_TRUE(both(936, code)) << std::hex << code;
    for (const auto code : {0xA1ABu, 0xA1B0u, 0xA1B1u, 0xA1E7u, 0xA3ACu, 0xFE50u})
        EXPECT_FALSE(isNameCharacter(936, code, false)) << std::hex << code;
    for (const auto code : {0x8141u, 0xB0A1u, 0xA141u, 0xA3C1u, 0xA4FEu})
        EXPECT_TRUE(both(949, code)) << std::hex << code;
    for (const auto code : {0xA1A2u, 0xA3ACu, 0xA8A1u, 0xAFFEu})
        EXPECT_FALSE(isNameCharacter(949, code, false)) << std::hex << code;
    for (const auto code : {0xA2CFu, 0xA340u, 0xA55Cu, 0xF9DDu}) EXPECT_TRUE(both(950, code)) << std::hex << code;
    for (const auto code : {0xA141u, 0xA2CEu, 0xF9DEu})
        EXPECT_FALSE(isNameCharacter(950, code, false)) << std::hex << code;
}

TEST(DoubleByteNames, AreCompleted) {
    for (const auto& names : kPages) {
        test::InsightProgram program;
        program.add("Module1.bas", with(names, "Private A1 As Long\nSub Main()\n  \nEnd Sub\n"));
        EXPECT_TRUE(program.offers(with(names, "Private A1 As Long\nSub Main()\n  |\nEnd Sub\n"), names.first));
    }
}

TEST(DoubleByteNames, AreRenamedInTheirPage) {
    for (const auto& names : kPages) {
        const basic::CodePage page(names.page);
        const auto code = with(names, "Private C1 As Long ' A1\nSub Main()\n  c1 = C1 + 1: [C1] = 2\nEnd Sub\n");
        qltoolkit::ProgramInput input;
        input.sources.push_back(std::make_shared<qltoolkit::SourceText>("M.bas", page.encode(code), page));
        const auto renaming = qltoolkit::renamingAt(input, 0, 8);
        ASSERT_EQ(renaming.refusal, "") << names.page;
        ASSERT_EQ(qltoolkit::refusalOf(input, renaming, names.second), "") << names.page;
        EXPECT_EQ(page.decode(*qltoolkit::renamedBytes(input, 0, renaming.places, names.second)),
                  with(names, "Private B1 As Long ' A1\nSub Main()\n  B1 = B1 + 1: [B1] = 2\nEnd Sub\n"))
            << names.page;
    }
}
