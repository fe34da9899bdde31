#include "Basic/runtime_error.h"
#include "Components/Image/word_bytes.h"
#include "tests/image_code/code_parts.h"
#include <gtest/gtest.h>

namespace {

using code_parts::Op;
using image::encode;
using image::encodeArgument;
using image::encodeWide;
using image::Pass;
using Words = std::vector<std::uint32_t>;
using Bytes = std::vector<int>;

std::string reasonFor(const auto& work) {
    const auto err = basic::attempt(work);
    EXPECT_EQ(err.Number, 321);
    return err.Description;
}
std::string whyNotWritten(const Words& words) {
    return reasonFor([&] { (void)image::encodeWords(words); });
}
std::string whyNotRead(const Bytes& bytes) {
    return reasonFor([&] { (void)image::decodeWords(image::Reader{std::string(bytes.begin(), bytes.end())}); });
}

/// The bytes of an instruction without that of its number, after they were read again.
Bytes written(const Words& words) {
    const auto bytes = image::encodeWords(words);
    EXPECT_EQ(image::decodeWords(image::Reader{bytes}), words);
    EXPECT_EQ(std::uint8_t(bytes[0]), words[0] & 0xFF);
    Bytes result;
    for (const auto each : bytes.substr(1)) result.push_back(std::uint8_t(each));
    return result;
}

std::uint32_t two(std::uint32_t first, std::uint32_t second) { return first | second << 16; }
std::uint32_t two(Pass first, std::uint32_t slot, Pass second, std::uint32_t other) {
    return two(encodeArgument(first, slot), encodeArgument(second, other));
}

constexpr std::uint32_t kBack = 0xFFFFFFFF; // -1

} // namespace

TEST(WordBytes, LeaveOutOperandsThatAnInstructionDoesNotHave) {
    EXPECT_EQ(written({encode(Op::Return)}), (Bytes{}));
    EXPECT_EQ(written({encode(Op::Clear, 200)}), (Bytes{200}));
    EXPECT_EQ(written({encode(Op::Move, 1, 255)}), (Bytes{1, 255}));
    EXPECT_EQ(written({encode(Op::AddLongK, 1, 2, 0x80)}), (Bytes{1, 2, 0x80}));
}

TEST(WordBytes, HaveNumbersOfVariableLength) {
    EXPECT_EQ(written({encodeWide(Op::LoadShort, 3, 1)}), (Bytes{3, 2}));
    EXPECT_EQ(written({encodeWide(Op::LoadShort, 3, 0xFFFF)}), (Bytes{3, 1}));
    EXPECT_EQ(written({encodeWide(Op::LoadShort, 3, 0x8000)}), (Bytes{3, 0xFF, 0xFF, 3}));
    EXPECT_EQ(written({encodeWide(Op::LoadFloat, 3, 127)}), (Bytes{3, 127}));
    EXPECT_EQ(written({encodeWide(Op::LoadWide, 3, 0xFFFF)}), (Bytes{3, 0xFF, 0xFF, 3}));
    EXPECT_EQ(written({encode(Op::LoadLong, 3), 0x80000000}), (Bytes{3, 0xFF, 0xFF, 0xFF, 0xFF, 0xF}));
    EXPECT_EQ(written({encode(Op::LoadText, 3), 128}), (Bytes{3, 0x80, 1}));
    EXPECT_EQ(written({encode(Op::Jump), kBack}), (Bytes{1}));
    EXPECT_EQ(written({encode(Op::JumpTable, 1, 0, 2), 3, kBack}), (Bytes{1, 2, 6, 1}));
}

TEST(WordBytes, HaveNoUnusedHalves) {
    EXPECT_EQ(written({encode(Op::FindElement, 1, 2, 3), two(4, 5), 6}), (Bytes{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(written({encode(Op::ReDim, 1, 0, 1), two(4, 5)}), (Bytes{1, 0, 1, 4, 5}));
    EXPECT_EQ(written({encode(Op::ReDimVariant, 1, 0, 1), 3, two(4, 5)}), (Bytes{1, 0, 1, 3, 4, 5}));
    EXPECT_EQ(written({encode(Op::FindElement, 1, 2, 1), 0xFFFF}), (Bytes{1, 2, 1, 0xFF, 0xFF, 3}));
}

TEST(WordBytes, HaveSmallNumbersForArgumentsInLowSlots) {
    const auto mixed = two(Pass::Ref, 15, Pass::Number, 2);
    EXPECT_EQ(written({encode(Op::Call, 1, 0, 2), 9, mixed}), (Bytes{1, 2, 9, 127, 16}));
    EXPECT_EQ(written({encode(Op::CallNative, 1, 0, 1), 9, two(Pass::Text, 16, {}, 0)}), (Bytes{1, 1, 9, 0x81, 1}));
    EXPECT_EQ(written({encode(Op::CallInterface, 1, 0, 1), two(3, 4), two(Pass::Object, 0, {}, 0)}),
              (Bytes{1, 1, 3, 4, 2}));
    EXPECT_EQ(written({encode(Op::RaiseEvent, 0, 2, 1), 5, two(Pass::Take, 1, {}, 0)}), (Bytes{2, 1, 5, 12}));
}

TEST(WordBytes, PackOperationsAndLateCalls) {
    const image::OperationWord operation{image::VariantOperator::Like, true, image::BaseType::Integer,
                                         image::BaseType::Variant};
    const int op = int(image::VariantOperator::Like);
    EXPECT_EQ(written({encode(Op::Operate, 1, 2, 3), operation.packed()}),
              (Bytes{1, 2, 3, 0x80 | op | 1 << 5 | (3 & 1) << 6, 3 >> 1 | 10 << 3}));
    EXPECT_EQ(written({encode(Op::CallLate, 1, 2, 2), 7, 1 | 1 << 8, 30, two(4, 5)}),
              (Bytes{1, 2, 2, 8, 1 | 1 << 2, 30, 4, 5}));
    EXPECT_EQ(written({encode(Op::CallLate, 255, 2, 0), image::kNone, 3}), (Bytes{255, 2, 0, 0, 3}));
}

TEST(WordBytes, HoldTheLongestInstruction) {
    Words longest{encode(Op::CallLate, 1, 2, 255), 1, 255 << 8};
    longest.resize(3 + 255 + 127, two(4, 5));
    longest.push_back(6);
    EXPECT_EQ(written(longest).size(), 2u + 1 + 1 + 2 + 255 * 3 + 255);
}

TEST(WordBytes, AreNotWrittenForWhatIsNoInstruction) {
    EXPECT_EQ(whyNotWritten({255}), "The code has words that are no instruction.");
    EXPECT_EQ(whyNotWritten({encode(Op::LoadText)}), "The code has words that are no instruction.");
    EXPECT_EQ(whyNotWritten({encode(Op::CallLate, 0, 0, 1), 0, 2 << 8, 1, 1, 1}),
              "The compiled file is damaged: a call has more names than arguments.");
    const std::string bits = "An instruction has bits that mean nothing.";
    EXPECT_EQ(whyNotWritten({encode(Op::Return, 1)}), bits);
    EXPECT_EQ(whyNotWritten({encode(Op::Clear, 1, 0, 1)}), bits);
    EXPECT_EQ(whyNotWritten({encode(Op::FindElement, 1, 2, 1), two(1, 1)}), bits);
    EXPECT_EQ(whyNotWritten({encode(Op::Operate, 1, 2, 3), 0x20}), bits);
    EXPECT_EQ(whyNotWritten({encode(Op::CallLate, 1, 2, 0), 0, 4}), bits);
}

TEST(WordBytes, AreNotReadIfTheyAreDamaged) {
    const std::string damaged = "The compiled file is damaged: ", early = damaged + "it ends too early.",
                      large = damaged + "a number is too large.";
    EXPECT_EQ(whyNotRead({255}), damaged + "an instruction is unknown.");
    EXPECT_EQ(whyNotRead({int(Op::Clear)}), early);
    EXPECT_EQ(whyNotRead({int(Op::Jump)}), early);
    EXPECT_EQ(whyNotRead({int(Op::FindElement), 1, 2, 2, 4}), early);
    EXPECT_EQ(whyNotRead({int(Op::LoadShort), 1, 0x80, 0x80, 4}), large);
    EXPECT_EQ(whyNotRead({int(Op::LoadFloat), 1, 0x80, 0x80, 4}), large);
    EXPECT_EQ(whyNotRead({int(Op::FindElement), 1, 2, 1, 0x80, 0x80, 4}), large);
    EXPECT_EQ(whyNotRead({int(Op::CallInterface), 1, 0, 0x80, 0x80, 4, 1}), large);
    EXPECT_EQ(whyNotRead({int(Op::CallInterface), 1, 0, 1, 0x80, 0x80, 4}), large);
    EXPECT_EQ(whyNotRead({int(Op::CallLate), 1, 2, 0, 0, 4, 9}), damaged + "a call has more names than arguments.");
}
