#pragma once
// References that end with a scope.
#include "Components/Tamarik/values/array_block.h"
#include "Components/Tamarik/values/text_block.h"
#include <utility>

namespace tamarik {

/// Releases a text or array at the end of a scope.
template <class Block>
class HeldBlock {
public:
    HeldBlock(Heap& heap, Block* block) : heap_(heap), block_(block) {}
    HeldBlock(const HeldBlock&) = delete;
    HeldBlock& operator=(const HeldBlock&) = delete;
    ~HeldBlock() { release(heap_, block_); }

    operator Block*() const { return block_; }
    Block* operator->() const { return block_; }
    /// Gives the reference away.
    [[nodiscard]] Block* take() { return std::exchange(block_, nullptr); }

private:
    Heap& heap_;
    Block* block_;
};
using HeldText = HeldBlock<TextBlock>;

} // namespace tamarik
