#pragma once
// Variants: 16 bytes, which are two slots.
#include "Components/Image/code/slot_type.h"
#include "Components/Tamarik/values/slot.h"
#include "Components/Tamarik/values/text_block.h"
#include <cstdint>

namespace tamarik {

/// VB's VarType. An array adds kArray to the kind of its elements.
enum VariantKind : std::uint16_t {
    kEmpty = 0,
    kNull = 1,
    kInteger = 2,
    kLong = 3,
    kSingle = 4,
    kDouble = 5,
    kCurrency = 6,
    kDate = 7,
    kString = 8,
    kObject = 9,
    kError = 10,
    kBoolean = 11,
    kVariant = 12,
    kDecimal = 14,
    kByte = 17,
    kRecord = 36,
    kArray = 8192
};

/// The value of kind kError that an omitted argument has.
inline constexpr std::int32_t kMissingArgument = static_cast<std::int32_t>(0x80020004);

/// A plain value; whoever has a Variant retains and releases it. A Single is a double; a Decimal has its 96 bits in `high` and
/// `low` and a sign in `flags`.
struct Variant {
    static constexpr std::uint8_t kFixed = 1;       ///< keeps its kind when it is assigned to
    static constexpr std::uint8_t kUnassigned = 2;  ///< an element of a ParamArray since it was passed
    static constexpr std::uint8_t kNegative = 0x80; ///< of a Decimal

    std::uint16_t kind = kEmpty;
    std::uint8_t scale = 0;
    std::uint8_t flags = 0;
    std::uint32_t high = 0;
    union {
        std::uint64_t low = 0;
        std::int32_t number;
        double fraction;
        std::int64_t currency;
        TextBlock* text;
        Object* object;
        ArrayBlock* array;
    };

    [[nodiscard]] bool isArray() const { return (kind & kArray) != 0; }
    [[nodiscard]] bool isMissing() const { return kind == kError && number == kMissingArgument; }
};
static_assert(sizeof(Variant) == 2 * sizeof(Slot));

[[nodiscard]] inline Variant& variantAt(Slot* slots) { return *reinterpret_cast<Variant*>(slots); }
[[nodiscard]] inline const Variant& variantAt(const Slot* slots) { return *reinterpret_cast<const Variant*>(slots); }

[[nodiscard]] Variant ofNumber(std::int32_t number, VariantKind kind = kLong);
[[nodiscard]] Variant ofFraction(double fraction, VariantKind kind = kDouble);
[[nodiscard]] Variant ofCurrency(std::int64_t scaled);
[[nodiscard]] inline Variant ofBoolean(bool value) { return ofNumber(value ? -1 : 0, kBoolean); }
[[nodiscard]] inline Variant ofKind(VariantKind kind) {
    Variant v;
    v.kind = kind;
    return v;
}
/// Takes over the reference.
[[nodiscard]] Variant ofText(TextBlock* text);
[[nodiscard]] Variant ofObject(Object* object);
[[nodiscard]] Variant ofArray(ArrayBlock* array);
[[nodiscard]] Variant missing();

[[nodiscard]] inline bool isManagedKind(const Variant& v) {
    return v.kind == kString || v.kind == kObject || v.isArray();
}

void releaseManaged(Heap& heap, const Variant& v);
inline void release(Heap& heap, const Variant& v) {
    if (isManagedKind(v)) releaseManaged(heap, v);
}
/// A second reference to what the Variant holds; an array is copied. The flag of a fixed kind is not.
[[nodiscard]] Variant copyOf(Heap& heap, const Variant& v);
/// As copyOf, but an array is shared.
[[nodiscard]] Variant sharedOf(const Variant& v);

[[nodiscard]] VariantKind kindOf(image::BaseType type);

} // namespace tamarik
