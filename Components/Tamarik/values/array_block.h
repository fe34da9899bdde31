#pragma once
// Arrays: a head that variables share, whose bounds and elements change in place.
#include "Components/Tamarik/values/counted.h"
#include "Components/Tamarik/values/shapes.h"
#include "Components/Tamarik/values/variant.h"
#include <span>
#include <vector>

namespace tamarik {

using Bounds = image::ArrayShape::Bounds;

/// Elements are stored in the order of the language: the first index varies fastest. Whole numbers take 4 bytes, those of Byte
/// arrays 1, Variants 16, records their slots, everything else 8.
struct ArrayBlock : Counted {
    ElementType element;
    std::int32_t lower = 0;   ///< of an array with one dimension
    std::uint32_t extent = 0; ///< the number of elements of an array with one dimension; otherwise 0
    std::uint32_t size = 0;   ///< the number of elements
    std::uint32_t locks = 0;
    std::uint32_t elementBytes = 0;
    void* data = nullptr;
    std::vector<Bounds> bounds; ///< empty if the array has no elements

    ArrayBlock() : Counted(Kind::Array) {}
    template <class T>
    [[nodiscard]] T* as() const {
        return static_cast<T*>(data);
    }
    [[nodiscard]] bool hasBytes() const { return elementBytes == 1; }
    [[nodiscard]] void* at(std::uint32_t place) const {
        return static_cast<char*>(data) + std::size_t{place} * elementBytes;
    }
};

[[nodiscard]] bool isPlain(const ArrayBlock& array);
/// Whether a slot of an array type may share the array: also its class or record is the same.
[[nodiscard]] inline bool hasElementsOf(const ArrayBlock& array, image::SlotType type) {
    return array.element.type.base == type.base && array.element.type.id == type.id;
}
[[nodiscard]] Managed managedKind(image::SlotType type);

/// Returns an array without dimensions.
[[nodiscard]] ArrayBlock* makeArray(Heap& heap, const ElementType& element);
/// Returns an array whose elements are as in a new one. Error 9 for a lower bound above the upper one, 7 without memory.
[[nodiscard]] ArrayBlock* makeArray(Heap& heap, const ElementType& element, std::span<const Bounds> bounds);
/// Returns an array with copies of the elements, also of arrays in Variants.
[[nodiscard]] ArrayBlock* copyOf(Heap& heap, const ArrayBlock& source);
/// Frees an array that has no references; what its elements hold is released in order.
void destroy(Heap& heap, ArrayBlock* array);

/// The place, from 0, of an element. Error 9.
[[nodiscard]] std::uint32_t placeOf(const ArrayBlock* array, std::span<const std::int32_t> indexes);
/// Changes the bounds. `keep` keeps the elements: only the upper bound of the last dimension may differ. Errors 9, 10, 7.
void redimension(Heap& heap, ArrayBlock& array, std::span<const Bounds> bounds, bool keep);
/// Removes the elements. Error 10 if the array is locked.
void erase(Heap& heap, ArrayBlock& array);
/// Makes all elements as in a new array. Error 10 as above.
void reset(Heap& heap, ArrayBlock& array);
/// Gives `target` the bounds and elements of `source`, which is then empty. Error 10 if either is locked.
void moveElements(Heap& heap, ArrayBlock& target, ArrayBlock& source);

/// The element as a Variant with a new reference. Error 13 for a record.
[[nodiscard]] Variant elementAt(Heap& heap, const ArrayBlock& array, std::uint32_t place);

void requireUnlocked(const ArrayBlock& array);

} // namespace tamarik
