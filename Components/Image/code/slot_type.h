#pragma once
// The static types of slots, elements and fields of compiled code.
#include <cstdint>

namespace image {

/// The types that a slot, an element of an array or a field of a record can have.
enum class BaseType : std::uint8_t {
    None,    ///< no result
    Boolean, ///< of elements only; a slot holds it as Long: 0 or -1
    Byte,    ///< of elements only
    Integer, ///< of elements only
    Long,
    Single, ///< of elements only; a slot holds it as Double
    Double,
    Currency,
    Date, ///< of elements only; a slot holds it as Double
    Text,
    Variant, ///< takes two slots
    Object,  ///< of exactly this class, or of any if its id is 0: that of an interface may have any
    Record,  ///< of elements, fields and references only; variables lie in consecutive slots, one or two a field
    Half     ///< the second slot of a Variant or reference
};
inline constexpr auto kBaseTypes = static_cast<std::uint8_t>(BaseType::Half) + 1;

enum class TypeForm : std::uint8_t {
    Value,
    Array,
    Reference,     ///< to a variable, element or field of the base type; takes two slots
    ArrayReference ///< to a variable that holds an array; takes two slots
};

/// The id is that of a class (from 1) or a record layout (from 0).
struct SlotType {
    BaseType base = BaseType::None;
    TypeForm form = TypeForm::Value;
    std::uint32_t id = 0;

    friend bool operator==(const SlotType&, const SlotType&) = default;
};

/// How many slots a variable of a type takes. Of records, see RecordShapes.
[[nodiscard]] constexpr std::uint32_t slotsOf(SlotType type) {
    const bool isPair = type.form == TypeForm::Reference || type.form == TypeForm::ArrayReference ||
                        (type.form == TypeForm::Value && type.base == BaseType::Variant);
    return isPair ? 2 : 1;
}

/// Whether a slot of this type owns something that must be released.
[[nodiscard]] constexpr bool isManaged(SlotType type) {
    if (type.form != TypeForm::Value) return true;
    return type.base == BaseType::Text || type.base == BaseType::Variant || type.base == BaseType::Object;
}

/// The type of the slot that holds a value of a type: whole numbers as Long, fractions and dates as Double.
[[nodiscard]] constexpr BaseType slotBase(BaseType type) {
    switch (type) {
    case BaseType::Boolean:
    case BaseType::Byte:
    case BaseType::Integer: return BaseType::Long;
    case BaseType::Single:
    case BaseType::Date: return BaseType::Double;
    default: return type;
    }
}

} // namespace image
