#pragma once
// An operator new that fails once, on request. For one source of a program.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace allocation_faults {

inline std::uint64_t newsUntilFailure = 0; ///< 0: none fails

/// Makes the n-th allocation during its lifetime fail.
class FailingNew {
public:
    explicit FailingNew(std::uint64_t n) { newsUntilFailure = n; }
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;
    ~FailingNew() { newsUntilFailure = 0; }
    [[nodiscard]] static bool isOver() { return newsUntilFailure == 0; }
};

/// Allocations of a test's own are not counted.
class NotCounted {
public:
    NotCounted() : kept_(newsUntilFailure) { newsUntilFailure = 0; }
    NotCounted(const NotCounted&) = delete;
    NotCounted& operator=(const NotCounted&) = delete;
    ~NotCounted() { newsUntilFailure = kept_; }

private:
    std::uint64_t kept_;
};

inline void* allocated(std::size_t size) {
    if (newsUntilFailure != 0 && --newsUntilFailure == 0) throw std::bad_alloc();
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

} // namespace allocation_faults

// Not inlined, so that the compiler does not match malloc with delete.
[[gnu::noinline]] void* operator new(std::size_t size) { return allocation_faults::allocated(size); }
[[gnu::noinline]] void* operator new[](std::size_t size) { return allocation_faults::allocated(size); }
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete[](void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
