#pragma once
// What instructions do with arrays in slots of the top frame.
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

void assignArray(Execution& m, std::uint32_t target, const ArrayBlock* source);
void takeArray(Execution& m, std::uint32_t target, std::uint32_t source);
/// Before a variable's array is shared with a slot: without one it gets an empty array, so that both reach the same from
/// now on.
void needArray(Execution& m, Slot& variable, std::uint32_t sharedWith);
void newArray(Execution& m, std::uint32_t target, std::uint32_t shape);
/// The words name pairs of slots with a lower and an upper bound.
void redimensionSlot(Execution& m, std::uint32_t target, bool keep, const std::uint32_t* words, std::uint32_t pairs);
[[nodiscard]] std::vector<Bounds> boundsIn(const Slot* base, const std::uint32_t* words, std::uint32_t pairs);
void eraseSlot(Execution& m, std::uint32_t target, bool resets);
void clearSlot(Execution& m, std::uint32_t slot);
[[nodiscard]] std::int32_t findElement(Execution& m, const ArrayBlock* array, const std::uint32_t* words,
                                       std::uint32_t count);
/// Error 9 for an array without dimensions, or without this one.
[[nodiscard]] const Bounds& boundOf(const ArrayBlock* array, std::int32_t dimension);
[[nodiscard]] TextBlock* textOfBytes(Heap& heap, const ArrayBlock* array);
void bytesOfText(Execution& m, std::uint32_t target, const TextBlock* text);

/// The half word of a list of slots.
[[nodiscard]] inline std::uint16_t halfAt(const std::uint32_t* words, std::uint32_t index) {
    return static_cast<std::uint16_t>(words[index / 2] >> (index % 2 != 0 ? 16 : 0));
}

} // namespace tamarik
