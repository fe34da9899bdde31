// The sources are read in words of 8 bytes: what begins, ends or differs at each place of a word.
#include "Components/QLToolkit/source/byte_block.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/name_words.h"
#include "tests/qltoolkit/ast_dump.h"
#include <gtest/gtest.h>
#include <random>

using qltoolkit::Pos;
using qltoolkit::SourceText;
using qltoolkit::dump::Parsed;

namespace {

std::vector<Pos> lineStartsOf(const std::string& text) {
    const SourceText source{"Test.bas", text};
    std::vector<Pos> starts;
    for (std::uint32_t line = 1; line <= source.lineCount() + 1; ++line) starts.push_back(source.lineStart(line));
    return starts;
}

/// The rule, a character at a time.
std::vector<Pos> expectedStarts(const std::string& text) {
    std::vector<Pos> starts{0};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool cr = text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n');
        if (text[i] == '\n' || cr) starts.push_back(static_cast<Pos>(i + 1));
    }
    if (starts.back() != text.size()) starts.push_back(static_cast<Pos>(text.size()));
    return starts;
}

std::string nameOfLength(std::size_t length) { return std::string("aB3_efGh9jK_mNo5qRsT").substr(0, length); }

std::string dimOf(const std::string& after, int page = 1252) {
    return Parsed("Dim " + after, "Test.bas", {}, basic::CodePage(page)).module();
}

/// Each byte at each place, among others that are their opposite.
template <class Block>
void checkBlock() {
    for (unsigned byte = 0; byte < 256; ++byte)
        for (unsigned place = 0; place < qltoolkit::kBlockBytes; ++place) {
            const char c = static_cast<char>(byte);
            const auto maskIn = [&](char others, auto&& mask) {
                std::string text(qltoolkit::kBlockBytes, others);
                text[place] = c;
                return mask(Block(text.data())) >> place & 1;
            };
            std::string name(qltoolkit::kBlockBytes, 'a');
            name[place] = c;
            const bool part = qltoolkit::charIs(c, qltoolkit::kNamePart);
            EXPECT_EQ(Block(name.data()).nameBytes(), part ? qltoolkit::kBlockBytes : place) << byte;
            for (const char others : {'a', '\0', '\xFF', ' ', static_cast<char>(c + 1), static_cast<char>(c - 1)}) {
                EXPECT_EQ(maskIn(others, [&](const Block& b) { return b.equal(c); }), 1u) << byte;
                EXPECT_EQ(maskIn(others, [&](const Block& b) { return b.equal(static_cast<char>(c ^ 0x80)); }), 0u);
                EXPECT_EQ(maskIn(others, [](const Block& b) { return b.unusual(); }), byte < 32 || byte > 127) << byte;
                EXPECT_EQ(maskIn(others, [](const Block& b) { return b.beyondAscii(); }), byte > 127) << byte;
            }
        }
}

} // namespace

TEST(Words, HoldTheSameNameCharactersAsTheTable) { checkBlock<qltoolkit::ByteBlock>(); }

TEST(Words, AreReadAlikeOnAllProcessors) { checkBlock<qltoolkit::WordByteBlock>(); }

TEST(Words, EndLinesAlikeOnAllProcessors) {
    std::mt19937 random(2);
    for (int run = 0; run < 20'000; ++run) {
        std::string text(qltoolkit::kBlockBytes + 1, ' ');
        for (char& c : text) c = "\r\n\v\x8D\x8A\0"[random() % 6];
        const auto words = qltoolkit::WordByteBlock(text.data()).lineEnds(text.data());
        ASSERT_EQ(qltoolkit::ByteBlock(text.data()).lineEnds(text.data()), words) << testing::PrintToString(text);
    }
}

TEST(Words, AreSplitIntoLinesAnywhere) {
    std::mt19937 random(1);
    for (int run = 0; run < 20'000; ++run) {
        std::string text(random() % 40, ' ');
        for (char& c : text) c = "\r\n\r\nab \t\0\xE9\x1F"[random() % 11];
        ASSERT_EQ(lineStartsOf(text), expectedStarts(text)) << testing::PrintToString(text);
    }
}

TEST(Words, AreSplitWhereLinesAreMuchShorterOrLongerThanUsual) {
    for (const auto* line : {"\n", "\r", "\r\n", "a\n"}) {
        std::string text;
        for (int i = 0; i < 5000; ++i) text += line;
        EXPECT_EQ(lineStartsOf(text), expectedStarts(text));
    }
    const std::string longLine = "'" + std::string(1'000'000, 'x') + "\r\n" + std::string(1'000'003, 'y');
    EXPECT_EQ(lineStartsOf(longLine), expectedStarts(longLine));
}

TEST(Words, CountControlCharactersOfTheBeginning) {
    const auto isBinary = [](const std::string& text) { return SourceText{"Test.bas", text}.isBinary(); };
    const auto with = [](char c, std::size_t count, std::size_t at) {
        std::string text(10'000, 'x');
        text.replace(at, count, count, c);
        return text;
    };
    for (const char c : {'\x01', '\x08', '\x0E', '\x1F', '\x7F'}) {
        EXPECT_FALSE(isBinary(with(c, 128, 13)));
        EXPECT_TRUE(isBinary(with(c, 129, 13)));
        EXPECT_FALSE(isBinary(with(c, 1000, 8192))) << "the sample ends here";
        EXPECT_TRUE(isBinary(with(c, 129, 8192 - 129)));
    }
    for (const char c : {'\0', '\t', '\v', '\f', '\x1A'}) EXPECT_FALSE(isBinary(with(c, 5000, 13)));
    EXPECT_TRUE(isBinary("a\x01"));
}

TEST(Words, EndNamesAnywhere) {
    for (std::size_t length = 1; length <= 20; ++length) {
        const auto name = nameOfLength(length);
        EXPECT_EQ(dimOf(name), "(dim " + name + ")") << "at the end of the file";
        for (const auto* end : {"\n", "\r", "\t\n", " 'x\n", "\xA0\n", ": "})
            EXPECT_EQ(dimOf(name + end), "(dim " + name + ")") << end;
        EXPECT_EQ(dimOf(name + ",b"), "(dim " + name + " b)");
        EXPECT_EQ(dimOf(name + "%"), "(dim " + name + "%)");
        EXPECT_EQ(dimOf(name + '\0' + "As Long"), "(dim " + name + ":Long)") << "a NUL is a blank";
        EXPECT_EQ(dimOf(name + "\xE9" + "b"), "(dim " + name + "\xC3\xA9" + "b)");
        EXPECT_EQ(dimOf(name + "\x83\x5C", 932), "(dim " + name + "\xE3\x82\xBD)") << "the second byte is \\";
        EXPECT_EQ(dimOf(name + "\x81\x40"
                               "As Long",
                        932),
                  "(dim " + name + ":Long)")
            << "a wide blank";
    }
}

TEST(Words, AreTheSameNameInAnyCase) {
    for (std::size_t length = 1; length <= 20; ++length) {
        auto name = nameOfLength(length), other = name;
        for (char& c : other)
            if (qltoolkit::charIs(c, qltoolkit::kNameStart)) c ^= 0x20;
        Parsed parsed{"Dim " + name + ", " + other + ", [" + other + "], " + name + "x\n"};
        EXPECT_EQ(parsed.module(), "(dim " + name + " " + name + " " + name + " " + name + "x)");
        EXPECT_EQ(parsed.symbols.intern(other), parsed.symbols.intern(name));
    }
}

TEST(Words, DistinguishNamesInEachByte) {
    qltoolkit::SymbolTable symbols;
    for (std::size_t length = 1; length <= 20; ++length)
        for (std::size_t place = 0; place < length; ++place) {
            auto name = nameOfLength(length);
            name[place] = 'z';
            EXPECT_NE(symbols.intern(name), symbols.intern(nameOfLength(length))) << name;
            EXPECT_EQ(symbols.spelling(symbols.intern(name)), name);
        }
}

TEST(Words, DistinguishNamesInBracketsFromOrdinaryOnes) {
    for (const std::string name : {"a0", "abcdefgh0"}) {
        std::string odd = name;
        odd.back() = '\x10'; // differs in the bit that folds letters
        Parsed parsed{"Dim [" + odd + "], " + name + "\n'" + std::string(200, 'x')}; // long enough for text
        EXPECT_EQ(parsed.module(), "(dim " + odd + " " + name + ")");
        EXPECT_NE(parsed.symbols.intern(odd), parsed.symbols.intern(name));
    }
}

TEST(Words, KeepTheFirstSpellingOfAForeignLetterThatFoldsToAnAsciiOne) {
    qltoolkit::SymbolTable symbols;
    const auto kelvin = symbols.intern("\xE2\x84\xAA"
                                       "elvin");
    EXPECT_EQ(symbols.intern("kelvin"), kelvin);
    EXPECT_EQ(symbols.spelling(kelvin), "\xE2\x84\xAA"
                                        "elvin");
}

TEST(Words, HoldIndentationOfAnyLength) {
    for (std::size_t blanks = 0; blanks <= 20; ++blanks)
        for (const auto* tabs : {"", "\t", "\t \t"})
            EXPECT_EQ(Parsed(std::string(blanks, ' ') + tabs + "#If 1 Then\nDim a\n#End If").module(), "(dim a)");
}

TEST(Words, RecogniseDirectivesAfterRareBlanks) {
    using namespace std::string_literals;
    EXPECT_EQ(Parsed("\xA0#If 0 Then\nDim a\n#End If\nDim b").module(), "(dim b)");
    EXPECT_EQ(Parsed("\xA0 \xA0#If 0 Then\nDim a\n#End If\nDim b").module(), "(dim b)");
    EXPECT_EQ(Parsed("\0 \0#If 0 Then\nDim a\n#End If\nDim b"s).module(), "(dim b)");
}
