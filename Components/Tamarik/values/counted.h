#pragma once
// What arrays and objects have in common: they are shared, and released in the order of the language.
#include "Components/Tamarik/values/heap.h"
#include <cstdint>

namespace tamarik {

struct Counted {
    enum class Kind : std::uint8_t { Array, Object };
    enum class State : std::uint8_t { Living, Terminating, Terminated };

    std::uint32_t count = 1;
    Kind kind;
    State state = State::Living;
    Counted* nextPending = nullptr;

    explicit Counted(Kind k) : kind(k) {}
};

inline void retain(Counted* block) {
    if (block) ++block->count;
}
inline void release(Heap& heap, Counted* block) {
    if (block && --block->count == 0) heap.pend(block);
}

} // namespace tamarik
