#pragma once
// A slot of a frame, record or object: 8 bytes without a tag. Its static type is known.
#include <cstdint>

namespace tamarik {

struct TextBlock;
struct ArrayBlock;
struct Counted;
class Object;

/// A zero is a valid value of every type.
union Slot {
    std::uint64_t bits;
    std::int32_t number;
    double fraction;
    std::int64_t currency;
    TextBlock* text;
    ArrayBlock* array;
    Object* object;
    Slot* pointer;  ///< the first half of a reference
    Counted* owner; ///< the second half: a locked array, an object, or null for a variable of a frame or module
};
static_assert(sizeof(Slot) == 8);

/// The whole number that a reference leads to. Elements of arrays take 4 bytes, so it may not be an aligned slot. Elements of 1
/// byte have no references.
inline std::int32_t& numberAt(Slot* slot) { return *reinterpret_cast<std::int32_t*>(slot); }

} // namespace tamarik
