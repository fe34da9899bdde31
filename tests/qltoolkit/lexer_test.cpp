// Cases that the parser's tests do not cover: names in foreign letters, continuations, unusual bytes.
#include "Components/QLToolkit/lexer/keywords.h"
#include "tests/qltoolkit/ast_dump.h"
#include <gtest/gtest.h>

using qltoolkit::Keyword;
using qltoolkit::dump::Parsed;
using qltoolkit::dump::statements;

namespace {

std::string continuedLines(int count) {
    std::string text = "x = 1";
    for (int i = 0; i < count; ++i) text += " + _\r\n 1";
    return text;
}

} // namespace

TEST(Lexer, AcceptsTwentyFourContinuations) {
    EXPECT_EQ(statements(continuedLines(24)).find("(let x"), 0u);
    EXPECT_EQ(statements(continuedLines(25)), "26:6 1103");
    EXPECT_EQ(statements(continuedLines(30)), "26:6 1103") << "one report per statement";
    EXPECT_EQ(statements(continuedLines(25) + "\ny = (1"), "26:6 1103 28:7 1801");
}

TEST(Lexer, ReadsNamesInTheProjectsCodePage) {
    const Parsed western{"Dim stra\xDF"
                         "e As Long, \xC9t\xE9\n",
                         "Test.bas"};
    EXPECT_EQ(western.module(), "(dim stra\xC3\x9F"
                                "e:Long \xC3\x89t\xC3\xA9)");
    const Parsed japanese{"Dim \x83\x5C\x83\x7C As Long\n", "Test.bas", {}, basic::CodePage(932)};
    EXPECT_EQ(japanese.module(), "(dim \xE3\x82\xBD\xE3\x83\x9D:Long)") << "second bytes equal to \\ and |";
    const Parsed chinese{"Dim \xD6\xD0\xCE\xC4$\n", "Test.bas", {}, basic::CodePage(936)};
    EXPECT_EQ(chinese.module(), "(dim \xE4\xB8\xAD\xE6\x96\x87$)");
    const Parsed utf8{"Dim \xC3\xA9t\xC3\xA9\n"};
    EXPECT_EQ(utf8.module(), "(dim \xC3\xA9t\xC3\xA9)");
}

TEST(Lexer, IgnoresCaseInForeignNames) {
    Parsed p{"Dim \xC9T\xC9, \xE9t\xE9, AbC, aBc, [aBC]\n"};
    EXPECT_EQ(p.module(), "(dim \xC3\x89T\xC3\x89 \xC3\x89T\xC3\x89 AbC AbC AbC)");
    EXPECT_EQ(p.symbols.intern("\xC3\xA9t\xC3\xA9"), p.symbols.intern("\xC3\x89T\xC3\x89"));
    EXPECT_EQ(p.symbols.intern("ABC"), p.symbols.internAscii("abc\0\0\0\0\0\0\0\0", 3));
    EXPECT_NE(p.symbols.intern("@"), p.symbols.intern("`")) << "one bit apart";
}

TEST(Lexer, ReportsTypographicQuotes) {
    EXPECT_EQ(Parsed("Sub A()\nx = \x93"
                     "a\x94\nEnd Sub")
                  .diagnostics(),
              "2:5 1100");
    EXPECT_EQ(Parsed("Sub A()\nf a\xA3\xAC"
                     "b\nEnd Sub",
                     "T.bas", {}, basic::CodePage(936))
                  .diagnostics(),
              "2:3 1100");
    const Parsed quotes{"Sub A()\nx = \x93\x94\nEnd Sub"};
    EXPECT_EQ(quotes.result.diagnostics[0].text, "The character \xE2\x80\x9C\xE2\x80\x9D is not valid here.");
}

TEST(Lexer, WideBlanksSeparateWords) {
    EXPECT_EQ(Parsed("Dim\x81\x40"
                     "a\n",
                     "T.bas", {}, basic::CodePage(932))
                  .module(),
              "(dim a)");
    EXPECT_EQ(Parsed("Dim\xA1\xA1"
                     "a\n",
                     "T.bas", {}, basic::CodePage(936))
                  .module(),
              "(dim a)");
    EXPECT_EQ(Parsed("Dim\xA0"
                     "a\n")
                  .module(),
              "(dim a)");
    EXPECT_EQ(Parsed("Dim\xC2\xA0"
                     "\xC3\xA9\n")
                  .module(),
              "(dim \xC3\xA9)");
}

TEST(Lexer, AcceptsAllKindsOfLineEnds) {
    EXPECT_EQ(Parsed("Dim a\rDim b\r\nDim c\nDim d\r\r\nDim e").module(), "(dim a) (dim b) (dim c) (dim d) (dim e)");
    EXPECT_EQ(Parsed("Dim a _\r  , b _\r\n , c").module(), "(dim a b c)");
    EXPECT_EQ(Parsed("Dim a ' x _\r y\rDim b").module(), "(dim a) (dim b)");
    EXPECT_EQ(Parsed("Dim a _").diagnostics(), "1:7 1100") << "no line to continue";
    EXPECT_EQ(Parsed("\n\n' only comments\n").module(), "");
}

TEST(Lexer, DistinguishesTypeCharactersFromOperators) {
    EXPECT_EQ(statements("Print#1, a"), "(print# 1 a)");
    EXPECT_EQ(statements("x = a&\"b\""), "2:7 1501") << "the & belongs to the name, as in VB";
    EXPECT_EQ(statements("x = a & \"b\""), "(let x (& a \"b\"))");
    EXPECT_EQ(statements("x = rs!a!"), "(let x (! rs a!))");
    EXPECT_EQ(statements("x = rs![a b]!c"), "(let x (! (! rs a b) c))");
    EXPECT_EQ(statements("x! = 1"), "(let x! 1)");
}

TEST(Lexer, LimitsTheLengthOfNames) {
    EXPECT_EQ(statements(std::string(255, 'a') + " = 1"), "(let " + std::string(255, 'a') + " 1)");
    EXPECT_EQ(statements(std::string(256, 'a') + " = 1"), "2:1 1106");
    EXPECT_EQ(statements(std::string(256, '\xE9') + " = 1"), "2:1 1106");
}

TEST(Keywords, DifferFromSimilarNames) {
    for (const auto* name : {"CInt", "Implementx", "Functio", "Functions", "Doo", "D", "RaiseEven", "RaiseEvents"}) {
        const auto parsed = Parsed("Dim " + std::string(name) + "\n");
        EXPECT_EQ(parsed.module(), "(dim " + std::string(name) + ")");
    }
    EXPECT_EQ(qltoolkit::keywordOf("_or\0\0\0\0\0\0\0\0", 3, qltoolkit::nameKey("_or\0\0\0\0\0\0\0\0", 3)),
              Keyword::None);
    const auto key = qltoolkit::nameKey("Function\0\0\0\0\0\0\0\0", 8);
    EXPECT_EQ(qltoolkit::keywordOf("Sequence\0\0\0\0\0\0\0\0", 8, key), Keyword::None) << "only the same key";
}

TEST(Keywords, AreFoundRegardlessOfCase) {
    for (int i = 1; i <= static_cast<int>(qltoolkit::kLastKeyword); ++i) {
        const auto k = static_cast<Keyword>(i);
        std::string word(qltoolkit::spelling(k));
        const auto length = static_cast<std::uint32_t>(word.size());
        for (char& c : word) c = static_cast<char>(c ^ (c >= 'a' && i % 2 ? 0x20 : 0));
        word.append(16, '\0');
        EXPECT_EQ(qltoolkit::keywordOf(word.data(), length, qltoolkit::nameKey(word.data(), length)), k) << word;
    }
}
