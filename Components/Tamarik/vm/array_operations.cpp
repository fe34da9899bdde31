#include "Components/Tamarik/vm/array_operations.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/vm/slot_values.h"
#include <array>
#include <cstring>

namespace tamarik {

namespace {

/// The array in a slot; made if the slot has none.
ArrayBlock& arrayIn(Execution& m, std::uint32_t slot) {
    Slot& place = m.frame->base[slot];
    needArray(m, place, slot);
    return *place.array;
}

} // namespace

void needArray(Execution& m, Slot& variable, std::uint32_t sharedWith) {
    if (!variable.array)
        variable.array = makeArray(m.heap, m.program->elementOf(m.frame->procedure->types[sharedWith]));
}

void assignArray(Execution& m, std::uint32_t target, const ArrayBlock* source) {
    if (m.frame->base[target].array == source) return;
    ArrayBlock& array = arrayIn(m, target);
    if (!source) return erase(m.heap, array);
    requireUnlocked(array);
    ArrayBlock* const copy = copyOf(m.heap, *source);
    moveElements(m.heap, array, *copy);
    release(m.heap, copy);
}

void takeArray(Execution& m, std::uint32_t target, std::uint32_t source) {
    ArrayBlock* const from = m.frame->base[source].array;
    ArrayBlock& array = arrayIn(m, target);
    if (from)
        moveElements(m.heap, array, *from);
    else
        erase(m.heap, array);
}

void newArray(Execution& m, std::uint32_t target, std::uint32_t shape) {
    const FixedArray& fixed = m.program->arrays[shape];
    setArray(m.heap, m.frame->base[target], makeArray(m.heap, fixed.element, fixed.bounds));
}

std::vector<Bounds> boundsIn(const Slot* base, const std::uint32_t* words, std::uint32_t pairs) {
    std::vector<Bounds> bounds(pairs);
    for (std::uint32_t i = 0; i < pairs; ++i) {
        bounds[i] = {base[words[i] & 0xFFFF].number, base[words[i] >> 16].number};
        if (bounds[i].lower > bounds[i].upper) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    }
    return bounds;
}

void redimensionSlot(Execution& m, std::uint32_t target, bool keep, const std::uint32_t* words, std::uint32_t pairs) {
    const std::vector<Bounds> bounds = boundsIn(m.frame->base, words, pairs);
    redimension(m.heap, arrayIn(m, target), bounds, keep);
}

void eraseSlot(Execution& m, std::uint32_t target, bool resets) {
    ArrayBlock* const array = m.frame->base[target].array;
    if (!array) return;
    if (resets)
        reset(m.heap, *array);
    else
        erase(m.heap, *array);
}

void clearSlot(Execution& m, std::uint32_t slot) {
    constexpr Slot kZero[2]{};
    copyValue(m.heap, m.frame->base + slot, kZero, m.frame->procedure->kinds[slot]);
}

std::int32_t findElement(Execution& m, const ArrayBlock* array, const std::uint32_t* words, std::uint32_t count) {
    std::array<std::int32_t, 256> indexes;
    for (std::uint32_t i = 0; i < count; ++i) indexes[i] = m.frame->base[halfAt(words, i)].number;
    return static_cast<std::int32_t>(placeOf(array, {indexes.data(), count}));
}

const Bounds& boundOf(const ArrayBlock* array, std::int32_t dimension) {
    if (!array || dimension < 1 || static_cast<std::uint32_t>(dimension) > array->bounds.size())
        throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    return array->bounds[static_cast<std::size_t>(dimension) - 1];
}

TextBlock* textOfBytes(Heap& heap, const ArrayBlock* array) {
    if (array && !array->hasBytes()) throw basic::RuntimeError(basic::kTypeMismatch);
    return array ? makeText(heap, array->data, array->size) : nullptr;
}

void bytesOfText(Execution& m, std::uint32_t target, const TextBlock* text) {
    ArrayBlock& array = arrayIn(m, target);
    if (!array.hasBytes()) throw basic::RuntimeError(basic::kTypeMismatch);
    const std::vector<std::uint8_t> bytes(text ? text->data() : nullptr, text ? text->data() + text->bytes : nullptr);
    const Bounds bounds{0, static_cast<std::int32_t>(bytes.size()) - 1};
    redimension(m.heap, array, {&bounds, 1}, false);
    if (!bytes.empty()) std::memcpy(array.data, bytes.data(), bytes.size());
}

} // namespace tamarik
