#pragma once
// The instruction table in the form that is fastest to compare with: sets of types.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/instruction.h"
#include <array>
#include <cstdint>

namespace image {

/// The number of a type without its class or record, for sets of 64.
using TypeClass = std::uint8_t;
using TypeSet = std::uint64_t;

constexpr TypeClass classOf(SlotType type) {
    return static_cast<TypeClass>(static_cast<std::uint8_t>(type.form) * kBaseTypes +
                                  static_cast<std::uint8_t>(type.base));
}
inline constexpr TypeClass kMissingSlot = 63; ///< outside the variables
inline constexpr TypeClass kSlotForNone = 62; ///< the number for a result that is not wanted
static_assert(4 * kBaseTypes <= kSlotForNone);

constexpr TypeSet setOf(BaseType base, TypeForm form = TypeForm::Value) { return TypeSet{1} << classOf({base, form}); }
template <class... Bases>
constexpr TypeSet arraysOf(Bases... bases) {
    return (setOf(bases, TypeForm::Array) | ...);
}
/// All elements, or arrays of or references to them.
constexpr TypeSet allOf(TypeForm form) {
    TypeSet set = 0;
    for (auto base = BaseType::Boolean; base < BaseType::Half; base = static_cast<BaseType>(int(base) + 1))
        set |= setOf(base, form);
    return set;
}
inline constexpr TypeSet kNumberSlots = setOf(BaseType::Long) | setOf(BaseType::Double) | setOf(BaseType::Currency);
inline constexpr TypeSet kArraySlots = allOf(TypeForm::Array);
inline constexpr TypeSet kReferenceSlots = allOf(TypeForm::Reference) | allOf(TypeForm::ArrayReference);
inline constexpr TypeSet kAllSlots = kNumberSlots | setOf(BaseType::Text) | setOf(BaseType::Variant) |
                                     setOf(BaseType::Object) | kArraySlots | kReferenceSlots;

/// What a slot may be for an operand; 0 if the operand is not a slot that the set decides about.
constexpr TypeSet slotsFor(Operand operand) {
    switch (operand) {
    case Operand::ReadLong:
    case Operand::WriteLong: return setOf(BaseType::Long);
    case Operand::ReadDouble:
    case Operand::WriteDouble: return setOf(BaseType::Double);
    case Operand::ReadCurrency:
    case Operand::WriteCurrency: return setOf(BaseType::Currency);
    case Operand::ReadText:
    case Operand::WriteText: return setOf(BaseType::Text);
    case Operand::ReadVariant:
    case Operand::WriteVariant: return setOf(BaseType::Variant);
    case Operand::ResultVariant: return setOf(BaseType::Variant) | TypeSet{1} << kSlotForNone;
    case Operand::ReadObject:
    case Operand::WriteObject:
    case Operand::SameOrAny: return setOf(BaseType::Object);
    case Operand::ReadArray:
    case Operand::WriteArray:
    case Operand::ElementOfA: return kArraySlots;
    case Operand::ReadRef:
    case Operand::WriteRef: return kReferenceSlots;
    case Operand::ReadValue:
    case Operand::WriteValue:
    case Operand::WriteAny:
    case Operand::SameAsA: return kAllSlots;
    case Operand::Result: return kAllSlots | TypeSet{1} << kSlotForNone;
    case Operand::WriteNumber: return kNumberSlots;
    case Operand::ByteArray: return arraysOf(BaseType::Byte);
    case Operand::LongArray: return arraysOf(BaseType::Boolean, BaseType::Integer, BaseType::Long);
    case Operand::FloatArray: return arraysOf(BaseType::Single, BaseType::Double, BaseType::Date);
    case Operand::CurrencyArray: return arraysOf(BaseType::Currency);
    case Operand::TextArray: return arraysOf(BaseType::Text);
    case Operand::ObjectArray: return arraysOf(BaseType::Object);
    case Operand::VariantArray: return arraysOf(BaseType::Variant);
    case Operand::VariantRef: return setOf(BaseType::Variant, TypeForm::Reference);
    // Without a default, so that no kind is forgotten.
    case Operand::None:
    case Operand::Signed:
    case Operand::Unsigned:
    case Operand::SignedBC:
    case Operand::WideSlot:
    case Operand::NumberB:
    case Operand::NumberC:
    case Operand::NumberBC:
    case Operand::BaseType:
    case Operand::OffsetC:
    case Operand::FieldC:
    case Operand::CountC: break;
    }
    return 0;
}

/// Whether the sets decide about an operand, and not its relation to others or to the tables.
constexpr bool isPlain(Operand operand) {
    switch (operand) {
    case Operand::None:
    case Operand::Signed:
    case Operand::SignedBC: return true;
    case Operand::Unsigned: // is a choice in every instruction that has it
    case Operand::SameAsA:
    case Operand::SameOrAny:
    case Operand::ObjectArray:
    case Operand::ElementOfA:
    case Operand::WriteObject: // may be of a class
    case Operand::Result: return false;
    default: return slotsFor(operand) != 0;
    }
}

/// Whether an operand takes the place of C too.
constexpr bool isWide(Operand operand) {
    return operand == Operand::SignedBC || operand == Operand::WideSlot || operand == Operand::NumberBC;
}

/// How an instruction is checked.
struct OperandMasks {
    std::array<TypeSet, 3> sets{}; ///< all ones for what is not a slot
    std::uint32_t zeros = 0;       ///< the bits of the word that must be 0
    std::uint8_t length = 1;       ///< in words; 0 if it varies
    bool isPlain = false;          ///< with the sets all is checked, but a jump
    bool isJump = false;
};

constexpr OperandMasks masksOf(const InstructionInfo& info) {
    OperandMasks masks;
    masks.isPlain = info.extra == Extra::None || info.extra == Extra::Jump;
    masks.isJump = info.extra == Extra::Jump;
    for (std::size_t i = 0; i < 3; ++i) {
        const auto operand = info.operands[i];
        masks.sets[i] = slotsFor(operand) != 0 ? slotsFor(operand) : ~TypeSet{0};
        const bool isFree = i == 2 && isWide(info.operands[1]);
        if (operand == Operand::None && !isFree) masks.zeros |= 0xFFU << (8 * (i + 1));
        masks.isPlain = masks.isPlain && isPlain(operand);
    }
    switch (info.extra) {
    case Extra::None: masks.length = 1; break;
    case Extra::Table:
    case Extra::Slots:
    case Extra::TypeAndSlots:
    case Extra::Procedure:
    case Extra::Interface:
    case Extra::Import:
    case Extra::Event:
    case Extra::Late: masks.length = 0; break;
    default: masks.length = 2;
    }
    return masks;
}

inline constexpr auto kOperandMasks = [] {
    std::array<OperandMasks, kInstructionCount> all{};
    for (std::size_t i = 0; i < kInstructionCount; ++i) all[i] = masksOf(kInstructions[i]);
    // What these need of the procedure, operands do not show; of the records, only references to any.
    for (const auto op : {Op::OnErrorResumeNext, Op::Resume, Op::ResumeNext, Op::PrepareRecord})
        all[static_cast<std::size_t>(op)].isPlain = false;
    return all;
}();

} // namespace image
