#include "Basic/utf8.h"
#include <gtest/gtest.h>

using basic::kNoCharacter;

namespace {

struct Row {
    std::string bytes;
    char32_t character;
};

} // namespace

TEST(Utf8, ReadsAndWritesTheFirstAndLastCharacterOfEachLength) {
    const Row rows[] = {{std::string(1, '\0'), 0},     {"\x7F", 0x7F},           {"\xC2\x80", 0x80},
                        {"\xDF\xBF", 0x7FF},           {"\xE0\xA0\x80", 0x800},  {"\xED\x9F\xBF", 0xD7FF},
                        {"\xEE\x80\x80", 0xE000},      {"\xEF\xBF\xBF", 0xFFFF}, {"\xF0\x90\x80\x80", 0x10000},
                        {"\xF4\x8F\xBF\xBF", 0x10FFFF}};
    for (const auto& [bytes, character] : rows) {
        std::size_t at = 0;
        EXPECT_EQ(basic::nextCharacter(bytes + "x", at), character);
        EXPECT_EQ(at, bytes.size());
        std::string written;
        basic::appendCharacter(written, character);
        EXPECT_EQ(written, bytes);
    }
}

TEST(Utf8, TakesOneByteOfWhatIsNotACharacter) {
    const std::string rows[] = {"\x80",
                                "\xBF",
                                "\xC0\x80",
                                "\xC1\xBF",
                                "\xC2",
                                "\xC2\x41",
                                "\xE0\x9F\xBF",
                                "\xED\xA0\x80",
                                "\xED\xBF\xBF",
                                "\xE1\x80",
                                "\xE1\x80\x41",
                                "\xF0\x80\x80\x80",
                                "\xF0\x8F\xBF\xBF",
                                "\xF4\x90\x80\x80",
                                "\xF1\x80\x80",
                                "\xF5\x80\x80\x80",
                                "\xFF"};
    for (const auto& bytes : rows) {
        std::size_t at = 0;
        EXPECT_EQ(basic::nextCharacter(bytes, at), kNoCharacter);
        EXPECT_EQ(at, 1U);
    }
}
