#pragma once
// Where the managed slots of a record, frame or object are, and how a new one is prepared.
#include "Components/Image/code/code_image.h"
#include "Components/Tamarik/values/slot.h"
#include <cstdint>
#include <vector>

namespace tamarik {

struct RecordShape;

enum class Managed : std::uint8_t { Text, Object, Array, Variant, Reference };

struct ManagedSlot {
    std::uint32_t slot;
    Managed kind;
};

/// The type of an array's elements, with what is needed to make and release one.
struct ElementType {
    image::SlotType type;
    std::uint32_t fixedLength = 0;       ///< of texts, in characters; otherwise 0
    const RecordShape* record = nullptr; ///< of records
};

/// An array with a fixed size.
struct FixedArray {
    ElementType element;
    std::vector<image::ArrayShape::Bounds> bounds;
};

/// A field that a new record does not leave zero: an array, or a text of a fixed length.
struct PreparedField {
    std::uint32_t slot;
    const FixedArray* array = nullptr;
    std::uint32_t fixedLength = 0;
};

struct RecordShape {
    std::uint32_t slots = 0;
    std::vector<ManagedSlot> managed;
    std::vector<PreparedField> prepared;
};

} // namespace tamarik
