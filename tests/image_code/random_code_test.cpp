#include "Components/Image/image.h"
#include "Components/Image/listing/disassemble.h"
#include "Components/Image/verify/slot_table.h"
#include "tests/support/random_code.h"
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

using image::CodeImage;

const support::RandomCode::Functions kFunctions{
    {"Left", {{image::BaseType::Text}, {{image::BaseType::Text}, {image::BaseType::Long}}}},
    {"Swap", {{}, {{image::BaseType::Text, image::TypeForm::Reference}}}}};

CodeImage randomCode(std::uint32_t seed) {
    std::mt19937 numbers(seed);
    return support::RandomCode([&](std::uint32_t limit) { return numbers() % limit; }, kFunctions).make();
}

const image::Signature* findFunction(std::string_view name) {
    const auto found = kFunctions.find(std::string(name));
    return found == kFunctions.end() ? nullptr : &found->second;
}

} // namespace

TEST(RandomCode, IsAcceptedAndSurvivesARoundTrip) {
    std::set<std::uint8_t> seen;
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        image::Image image;
        image.code = randomCode(seed);
        const auto problem = image::verify(image.code, findFunction);
        ASSERT_FALSE(problem) << seed << ": " << problem->text << "\n" << disassemble(image.code, problem->procedure);
        const auto bytes = image::encode(image);
        const auto decoded = image::decode(bytes);
        ASSERT_EQ(decoded, image) << seed;
        ASSERT_EQ(image::encode(decoded), bytes) << seed;
        const auto& words = image.code.code;
        for (std::size_t at = 0; at < words.size(); at += image::lengthOf(&words[at], words.size() - at))
            seen.insert(std::uint8_t(words[at] & 0xFF));
    }
    for (std::size_t i = 0; i < image::kInstructionCount; ++i)
        EXPECT_TRUE(seen.contains(std::uint8_t(i))) << image::kInstructions[i].name;
}

/// Changes one operand of each instruction to a slot that its table does not allow.
TEST(RandomCode, IsRefusedAfterAChangeOfAnOperand) {
    std::size_t changes = 0;
    for (std::uint32_t seed = 0; seed < 10; ++seed) {
        const auto good = randomCode(seed);
        const image::Tables tables{good};
        image::SlotTable slots{tables};
        for (const auto& procedure : good.procedures) {
            slots.assign(procedure);
            for (std::uint32_t at = 0; at < procedure.words;) {
                const auto* word = &good.code[procedure.code + at];
                const auto& info = image::kInstructions[*word & 0xFF];
                for (std::size_t i = 0; i < 3; ++i) {
                    const auto set = image::slotsFor(info.operands[i]);
                    const auto slot = std::uint32_t(7 * at + i) % 256;
                    if (set == 0 || (set >> slots.classOfSlot(std::uint8_t(slot)) & 1) != 0) continue;
                    auto changed = good;
                    const auto shift = 8 * (i + 1);
                    changed.code[procedure.code + at] = (*word & ~(0xFFU << shift)) | slot << shift;
                    ASSERT_TRUE(image::verify(changed)) << seed << " " << at << " " << info.name;
                    ++changes;
                }
                at += std::uint32_t(image::lengthOf(word, procedure.words - at));
            }
        }
    }
    EXPECT_GT(changes, 2000u);
}
