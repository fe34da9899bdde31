// Each operand of each instruction with a slot that suits, and with slots of all other types.
#include "Components/Image/verify/operand_masks.h"
#include "tests/image_code/verify_world.h"

namespace {

using namespace code_parts;
using image::Extra;
using image::Operand;
using image::TypeSet;

/// A slot of Main for each type, in the order in which one is chosen.
constexpr std::uint32_t kOneOfEach[] = {kL,           kD,        kC,         kT,          kV,          kO,
                                        kBytes,       kLongs,    kIntegers,  kDoubles,    kCurrencies, kTexts,
                                        kObjects,     kVariants, kPoints,    kRefLong,    kRefByte,    kRefDouble,
                                        kRefCurrency, kRefText,  kRefObject, kRefVariant, kRefPoint,   kRefLongs};

image::TypeClass classOfSlot(std::uint32_t slot) {
    std::uint32_t at = 0;
    for (const auto type : mainVariables()) {
        if (at == slot) return image::classOf(type);
        at += type == record(0) ? 5 : type == record(1) ? 11 : image::slotsOf(type);
    }
    return image::kMissingSlot;
}

/// The words of an instruction that the verifier accepts.
std::vector<std::uint32_t> good(Op op) {
    const auto with = [op](std::uint32_t a, std::uint32_t b, std::uint32_t c, std::vector<std::uint32_t> rest) {
        rest.insert(rest.begin(), encode(op, a, b, c));
        return rest;
    };
    switch (op) {
    case Op::RefAt:
    case Op::RefFlat: return with(kRefLong, kLongs, kL, {});
    case Op::RefSlot: return {encodeWide(op, kRefLong, kL)};
    case Op::RefField: return with(kRefLong, kShape, 0, {0});
    case Op::RefPart: return with(kRefText, kRefPoint, 0, {1});
    case Op::LoadWide:
    case Op::StoreWide: return {encodeWide(op, kL, kL2)};
    case Op::LoadField:
    case Op::StoreField: return with(kL, kShape, 0, {});
    case Op::SetSource: return with(kShape, kCircle, 0, {});
    case Op::LoadFloatRef:
    case Op::StoreFloatRef: return with(kD, kRefDouble, 0, {});
    case Op::LoadCurrencyRef:
    case Op::StoreCurrencyRef: return with(kC, kRefCurrency, 0, {});
    case Op::LoadTextRef:
    case Op::StoreTextRef: return with(kT, kRefText, 0, {});
    case Op::LoadObjectRef:
    case Op::StoreObjectRef: return with(kO, kRefObject, 0, {});
    case Op::LoadVariantRef:
    case Op::StoreVariantRef: return with(kV, kRefVariant, 0, {});
    case Op::LoadArrayRef:
    case Op::StoreArrayRef: return with(kLongs, kRefLongs, 0, {});
    case Op::CopyRecord: return with(kRefPoint, kRefPoint, 0, {});
    case Op::PrepareRecord: return with(kRefPoint, 0, 0, {});
    case Op::NewArray: return with(kLongs, 0, 0, {0});
    case Op::FindElement: return with(kL, kLongs, 1, {kL});
    case Op::VariantAt: return with(kV, kV, 1, {kV});
    case Op::StoreVariantElement: return with(kV, kV, 1, {kV});
    case Op::VariantRefAt:
    case Op::StoreVariantRefElement: return with(kV, kRefVariant, 1, {kV});
    case Op::ReDim: return with(kLongs, 0, 1, {kL | kL2 << 16});
    case Op::ReDimVariant: return with(kV, 0, 1, {image::pack(kLong), kL | kL2 << 16});
    case Op::OperateUnary: return with(kV, kV, 0, {std::uint32_t(image::VariantOperator::Not)});
    case Op::Call: return with(image::kNoSlot, 0, 0, {0});
    case Op::CallMethod: return with(image::kNoSlot, 0, 1, {7, encodeArgument(Pass::Object, kShape)});
    case Op::CallInterface:
        return with(image::kNoSlot, 0, 2, {1, encodeArgument(Pass::Object, kO) | std::uint32_t(kL) << 16});
    case Op::CallNative: return with(image::kNoSlot, 0, 0, {1});
    case Op::CallByName: return with(image::kNoSlot, kV, 2, {kV | std::uint32_t(kV) << 16});
    case Op::CallLate: return with(image::kNoSlot, kV, 0, {0, 0});
    case Op::RaiseEvent: return with(0, kShape, 2, {0, kL | std::uint32_t(encodeArgument(Pass::Address, kT)) << 16});
    default: break;
    }
    const auto& info = image::infoOf(op);
    std::array<std::uint32_t, 3> values{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (const auto slot : kOneOfEach) {
            if ((image::slotsFor(info.operands[i]) >> classOfSlot(slot) & 1) == 0) continue;
            values[i] = slot;
            break;
        }
        if (info.operands[i] == Operand::SameAsA || info.operands[i] == Operand::SameOrAny) values[i] = values[0];
        if (info.operands[i] == Operand::BaseType)
            values[i] = std::uint32_t(
                info.operands[0] == Operand::WriteDouble || info.operands[1] == Operand::ReadDouble ? BaseType::Double
                                                                                                    : BaseType::Long);
    }
    auto words = with(values[0], values[1], values[2], {});
    if (info.extra == Extra::Jump || info.extra == Extra::Text || info.extra == Extra::Global ||
        info.extra == Extra::Operation || info.extra == Extra::Number)
        words.push_back(0);
    if (info.extra == Extra::Class) words.push_back(1);
    return words;
}

std::string problemOf(std::vector<std::uint32_t> words) {
    static Program program;
    program.code.procedures[program.main].statements = {0};
    return program.runs(std::move(words)).problem();
}

} // namespace

TEST(OperandKinds, AcceptAGoodSlotOfEachInstruction) {
    for (std::size_t i = 0; i < image::kInstructionCount; ++i)
        EXPECT_EQ(problemOf(good(Op(i))), "") << image::kInstructions[i].name;
}

TEST(OperandKinds, RefuseSlotsOfAllOtherTypes) {
    int refusals = 0;
    for (std::size_t i = 0; i < image::kInstructionCount; ++i) {
        const auto& info = image::kInstructions[i];
        for (std::size_t operand = 0; operand < 3; ++operand) {
            const auto set = image::slotsFor(info.operands[operand]);
            for (const auto slot : kOneOfEach) {
                if (set == 0 || (set >> classOfSlot(slot) & 1) != 0) continue;
                auto words = good(Op(i));
                const auto shift = 8 * (operand + 1);
                words[0] = (words[0] & ~(0xFFU << shift)) | slot << shift;
                const auto text = problemOf(words);
                const auto expected =
                    std::string("operand ") + char('A' + operand) + " names slot " + std::to_string(slot);
                EXPECT_TRUE(text.find(expected) != std::string::npos) << info.name << " " << slot << ": " << text;
                ++refusals;
            }
        }
    }
    EXPECT_GT(refusals, 5000);
}

TEST(OperandKinds, RefuseSlotsThatDoNotExistAndHalvesOfPairs) {
    for (std::size_t i = 0; i < image::kInstructionCount; ++i) {
        for (std::size_t operand = 0; operand < 3; ++operand) {
            const auto kind = image::kInstructions[i].operands[operand];
            if (image::slotsFor(kind) == 0) continue;
            const auto shift = 8 * (operand + 1);
            for (const std::uint32_t slot : {std::uint32_t(kV + 1), std::uint32_t(kRefLong + 1), 255u}) {
                if (slot == 255 && (kind == Operand::Result || kind == Operand::ResultVariant)) continue;
                auto words = good(Op(i));
                words[0] = (words[0] & ~(0xFFU << shift)) | slot << shift;
                EXPECT_NE(problemOf(words), "") << image::kInstructions[i].name << " " << slot;
            }
        }
    }
}

/// What no instruction reads yet must be 0, so that it can get a meaning.
TEST(OperandKinds, RefuseBytesWithoutMeaning) {
    for (std::size_t i = 0; i < image::kInstructionCount; ++i) {
        const auto& operands = image::kInstructions[i].operands;
        for (std::size_t operand = 0; operand < 3; ++operand) {
            if (operands[operand] != Operand::None || (operand == 2 && image::isWide(operands[1]))) continue;
            auto words = good(Op(i));
            words[0] |= 1U << (8 * (operand + 1));
            EXPECT_NE(problemOf(words), "") << image::kInstructions[i].name;
        }
    }
}
