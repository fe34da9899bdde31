// The code of everyday statements stays small. bench/code_size measures the same on folders of projects.
#include "Components/Image/code/instruction.h"
#include "Components/Image/word_bytes.h"
#include "tests/qltoolkit/checked_program.h"
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace {

/// Two in a hundred more than the compiler needs at present. Lower them when it needs less.
constexpr std::size_t kMostBytes = 987, kMostWords = 437;

image::CodeImage everyday() {
    std::ifstream file(FERNWICK_SOURCE_DIR "/tests/qltoolkit/programs/Everyday.bas", std::ios::binary);
    test::CheckedProgram program;
    program.text("Everyday.bas", {std::istreambuf_iterator<char>(file), {}});
    auto compiled = program.compiled();
    EXPECT_TRUE(compiled.code) << program.firstPlace();
    return compiled.code ? std::move(*compiled.code) : image::CodeImage{};
}

} // namespace

TEST(CodeSize, OfEverydayStatementsDoesNotGrow) {
    const auto code = everyday().code;
    EXPECT_GT(code.size(), kMostWords / 2);
    EXPECT_LE(code.size(), kMostWords);
    EXPECT_LE(image::encodeWords(code).size(), kMostBytes);
}
