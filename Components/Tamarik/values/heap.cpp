#include "Components/Tamarik/values/heap.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/array_block.h"
#include <cstdlib>

namespace tamarik {

void Heap::reserve(std::uint64_t charge, int error) {
    if (countdown_ != 0 && --countdown_ == 0) throw basic::RuntimeError(basic::kOutOfMemory);
    if (charge > limit_ || used_ > limit_ - charge) throw basic::RuntimeError(error);
}

void* Heap::allocate(std::size_t bytes, std::uint64_t charge, int error) {
    reserve(charge, error);
    void* const block = std::calloc(1, bytes);
    if (!block) throw basic::RuntimeError(error);
    used_ += charge;
    return block;
}

void* Heap::resize(void* block, std::size_t bytes, std::uint64_t oldCharge, std::uint64_t charge, int error) {
    used_ -= oldCharge;
    try {
        reserve(charge, error);
        void* const moved = std::realloc(block, bytes);
        if (!moved) throw basic::RuntimeError(error);
        used_ += charge;
        return moved;
    } catch (...) {
        used_ += oldCharge;
        throw;
    }
}

void Heap::free(void* block, std::uint64_t charge) noexcept {
    used_ -= charge;
    std::free(block);
}

void Heap::pend(Counted* block) {
    if (block->kind == Counted::Kind::Array && isPlain(*static_cast<ArrayBlock*>(block)))
        return destroy(*this, static_cast<ArrayBlock*>(block));
    block->nextPending = *insertion_;
    *insertion_ = block;
    insertion_ = &block->nextPending;
}

Counted* Heap::takePending() {
    Counted* const first = pending_;
    pending_ = first->nextPending;
    first->nextPending = nullptr;
    insertion_ = &pending_;
    return first;
}

Counted* Heap::detachPending() {
    Counted* const list = pending_;
    pending_ = nullptr;
    insertion_ = &pending_;
    return list;
}

void Heap::restorePending(Counted* list) {
    Counted** end = insertion_;
    while (*end) end = &(*end)->nextPending;
    *end = list;
}

} // namespace tamarik
