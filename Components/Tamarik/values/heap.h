#pragma once
// The memory of a running program: what may be allocated, and what waits to be released.
#include "Basic/error_numbers.h"
#include <cstddef>
#include <cstdint>
#include <limits>

namespace tamarik {

struct Counted;

/// Sizes stay below this on all machines, so that 32-bit counts of references cannot overflow.
inline constexpr std::uint64_t kMostHeapBytes = std::uint64_t{2} << 30;

/// Allocates blocks and counts them by their charge, which is the same on all machines so that a program runs out of memory
/// at the same point everywhere.
class Heap {
public:
    explicit Heap(std::uint64_t limit = kMostHeapBytes) : limit_(limit < kMostHeapBytes ? limit : kMostHeapBytes) {}
    Heap(const Heap&) = delete;
    Heap& operator=(const Heap&) = delete;

    /// Returns a block filled with zeros. Error 7, or `error`, if the limit is reached.
    [[nodiscard]] void* allocate(std::size_t bytes, std::uint64_t charge, int error = basic::kOutOfMemory);
    /// Returns the block with a different size, moved if necessary. Errors as above; the block is then unchanged.
    [[nodiscard]] void* resize(void* block, std::size_t bytes, std::uint64_t oldCharge, std::uint64_t charge,
                               int error = basic::kOutOfMemory);
    void free(void* block, std::uint64_t charge) noexcept;

    [[nodiscard]] std::uint64_t used() const { return used_; }
    /// Makes the n-th allocation from now on fail with error 7; for tests.
    void failAllocation(std::uint64_t n) { countdown_ = n; }

    /// Releases an array or object without references: at once if its release runs no code, otherwise when the machine
    /// takes it.
    void pend(Counted* block);
    [[nodiscard]] bool hasPending() const { return pending_ != nullptr; }
    /// Removes and returns the first block that waits. What its release adds is taken next, in order.
    [[nodiscard]] Counted* takePending();
    /// Removes all waiting blocks, for a call that must finish first; `restorePending` appends them again.
    [[nodiscard]] Counted* detachPending();
    void restorePending(Counted* list);

    Counted* living = nullptr; ///< the latest object, linked to the older ones

private:
    void reserve(std::uint64_t charge, int error);

    std::uint64_t limit_, used_ = 0;
    std::uint64_t countdown_ = 0;
    Counted* pending_ = nullptr;
    Counted** insertion_ = &pending_;
};

} // namespace tamarik
