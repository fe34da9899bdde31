#pragma once
// Instructions of compiled code and their operands. instructions.def lists them.
#include "Components/Image/code/slot_type.h"
#include <array>
#include <cstddef>
#include <string_view>

namespace image {

enum class Op : std::uint8_t {
#define INSTRUCTION(name, ...) name,
#include "Components/Image/code/instructions.def"
#undef INSTRUCTION
};

/// Added to the type in C of VariantToLong and VariantToFloat: an error value is its number, as for CLng.
inline constexpr std::uint32_t kTakesErrors = 0x80;

/// What A, B or C of an instruction is. Read... and Write... name a slot of this type; None must be 0.
enum class Operand : std::uint8_t {
    None,
    ReadLong,
    WriteLong,
    ReadDouble,
    WriteDouble,
    ReadCurrency,
    WriteCurrency,
    ReadText,
    WriteText,
    ReadVariant,
    WriteVariant,
    ReadObject, ///< of any class
    WriteObject,
    ReadArray, ///< of any elements
    WriteArray,
    ReadRef,
    WriteRef,
    VariantRef, ///< a reference to a Variant
    ReadValue,  ///< of any type that is one or two slots
    WriteValue,
    WriteAny,
    WriteNumber, ///< Long, Double or Currency
    SameAsA,     ///< a slot of A's type
    SameOrAny,   ///< an object slot; A's class is the same, or any
    ByteArray,   ///< an array slot with elements of type Byte
    LongArray,   ///< Boolean, Integer or Long
    FloatArray,  ///< Single, Double or Date
    CurrencyArray,
    TextArray,
    ObjectArray, ///< the class of A and that of the elements are as in SameOrAny
    VariantArray,
    ElementOfA, ///< an array slot; A refers to its element type
    Signed,     ///< a number from -128 to 127
    Unsigned,   ///< a number from 0 to 255
    SignedBC,   ///< in B and C together, from -32768 to 32767
    WideSlot,   ///< B and C together are the number of a slot
    NumberB,    ///< a constant of the procedure
    NumberC,
    NumberBC,
    BaseType, ///< a number of BaseType
    OffsetC,  ///< a slot of the record that B refers to; 0 for a reference to a single value
    FieldC,   ///< a slot of the object B, whose class is known
    CountC,   ///< how many slots, arguments or distances follow
    Result,   ///< the slot for the result of a call, or kNoSlot
    ResultVariant
};

/// What follows the first word.
enum class Extra : std::uint8_t {
    None,
    Number,       ///< 32 bits
    Text,         ///< an index of CodeImage::texts
    Jump,         ///< a signed distance in words from the instruction
    Table,        ///< C distances
    Slots,        ///< C slots, two a word, the first in the lower half; a last unused half is 0
    TypeAndSlots, ///< a packed SlotType, then Slots
    Operation,    ///< see OperationWord
    Array,        ///< an index of CodeImage::arrays
    Global,       ///< a slot of the modules' variables
    Field,        ///< a slot of an object
    Offset,       ///< a slot of a record
    Class,        ///< the number of a class
    Procedure,    ///< an index of CodeImage::procedures, then Arguments
    Interface,    ///< a class in the lower half, one of its members in the upper, then Arguments
    Import,       ///< an index of CodeImage::imports, then Arguments
    Event,        ///< an event of the class of B, then Arguments
    Late          ///< see LateCall
};

struct InstructionInfo {
    std::string_view name;
    std::array<Operand, 3> operands;
    Extra extra;
    std::string_view meaning;
};

inline constexpr InstructionInfo kInstructions[] = {
#define INSTRUCTION(name, a, b, c, extra, meaning) {#name, {Operand::a, Operand::b, Operand::c}, Extra::extra, meaning},
#include "Components/Image/code/instructions.def"
#undef INSTRUCTION
};
inline constexpr std::size_t kInstructionCount = std::size(kInstructions);
static_assert(kInstructionCount < 256);

[[nodiscard]] constexpr const InstructionInfo& infoOf(Op op) { return kInstructions[static_cast<std::size_t>(op)]; }

[[nodiscard]] constexpr std::uint32_t encode(Op op, std::uint32_t a = 0, std::uint32_t b = 0, std::uint32_t c = 0) {
    return static_cast<std::uint32_t>(op) | (a & 0xFF) << 8 | (b & 0xFF) << 16 | (c & 0xFF) << 24;
}
/// For operands that B and C hold together.
[[nodiscard]] constexpr std::uint32_t encodeWide(Op op, std::uint32_t a, std::uint32_t bc) {
    return static_cast<std::uint32_t>(op) | (a & 0xFF) << 8 | (bc & 0xFFFF) << 16;
}

/// An instruction's first word, taken apart. `op` may be a number that no instruction has.
struct Word {
    std::uint8_t op, a, b, c;
    explicit constexpr Word(std::uint32_t word)
        : op(word & 0xFF), a(word >> 8 & 0xFF), b(word >> 16 & 0xFF), c(word >> 24) {}
    [[nodiscard]] constexpr std::int8_t signedB() const { return static_cast<std::int8_t>(b); }
    [[nodiscard]] constexpr std::int8_t signedC() const { return static_cast<std::int8_t>(c); }
    [[nodiscard]] constexpr std::uint16_t bc() const { return static_cast<std::uint16_t>(b | c << 8); }
    [[nodiscard]] constexpr std::int16_t signedBC() const { return static_cast<std::int16_t>(bc()); }
};

/// How an argument reaches the slots of a parameter. Takes leave the argument's slot zero.
enum class Pass : std::uint8_t {
    Number,   ///< a copy of a slot that is not managed
    Text,     ///< a copy
    Object,   ///< a copy
    Variant,  ///< a copy
    Take,     ///< what one managed slot holds: a text, object or array
    TakePair, ///< what two slots hold: a Variant or reference
    Address,  ///< a reference to the variable in this slot
    Ref       ///< a copy of a reference
};
/// An argument takes half a word: how it is passed in the upper 3 bits, the slot below.
[[nodiscard]] constexpr std::uint16_t encodeArgument(Pass pass, std::uint32_t slot) {
    return static_cast<std::uint16_t>(static_cast<std::uint32_t>(pass) << 13 | slot);
}
[[nodiscard]] constexpr Pass passOf(std::uint16_t argument) { return static_cast<Pass>(argument >> 13); }
[[nodiscard]] constexpr std::uint32_t slotOf(std::uint16_t argument) { return argument & 0x1FFF; }

/// The operators of Operate and OperateUnary.
enum class VariantOperator : std::uint8_t {
    Power,
    Multiply,
    Divide,
    IntDivide,
    Mod,
    Add,
    Subtract,
    Concat,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Like,
    And,
    Or,
    Xor,
    Eqv,
    Imp,
    Negate,
    Not,
    Plus
};
inline constexpr auto kVariantOperators = static_cast<std::uint8_t>(VariantOperator::Plus) + 1;

/// The operator, whether texts are compared ignoring case, and the declared types of the operands, which decide how a text
/// and a number are compared.
struct OperationWord {
    VariantOperator op = VariantOperator::Add;
    bool comparesText = false;
    BaseType left = BaseType::Variant, right = BaseType::Variant;

    [[nodiscard]] constexpr std::uint32_t packed() const {
        return static_cast<std::uint32_t>(op) | static_cast<std::uint32_t>(comparesText) << 8 |
               static_cast<std::uint32_t>(left) << 16 | static_cast<std::uint32_t>(right) << 24;
    }
};

/// How a late-bound member is used.
enum class LateUse : std::uint8_t { Call, Get, Let, Set };

/// The words after CallLate: the member's name (a text, kNone for the default member); the use and, from bit 8 on, how many
/// of the last arguments are named; the names of these (texts); and the arguments as Slots, each a Variant that the called
/// procedure may assign to. Of Let and Set the last argument is the value.
inline constexpr std::uint32_t kLateHeadWords = 2;

/// A SlotType in one word: the base type in 8 bits, the form in 8, the id in 16.
[[nodiscard]] constexpr std::uint32_t pack(SlotType type) {
    return static_cast<std::uint32_t>(type.base) | static_cast<std::uint32_t>(type.form) << 8 | type.id << 16;
}

/// How many words an instruction has at most `available` of; 0 if it is unknown or not complete.
[[nodiscard]] std::size_t lengthOf(const std::uint32_t* code, std::size_t available);

} // namespace image
