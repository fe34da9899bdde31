#include "Apps/common/process_memory.h"
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace apps {

namespace {

constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20;
constexpr int kHeap = 128 << 20;

/// Address space costs nothing, and a large page is taken when it is first touched. A system without large pages ignores
/// the advice.
void takeLargePages() {
    const auto before = reinterpret_cast<std::uintptr_t>(sbrk(0));
    mallopt(M_TOP_PAD, kHeap);
    void* volatile first = std::malloc(kLargePage); // the heap grows by kHeap, too
    std::free(first);
    const auto begin = (before + kLargePage - 1) & ~(kLargePage - 1);
    const auto end = reinterpret_cast<std::uintptr_t>(sbrk(0)) & ~(kLargePage - 1);
    if (begin < end) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
    mallopt(M_TOP_PAD, 128 << 10);
}

} // namespace

void keepFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 4 << 20);
    mallopt(M_TRIM_THRESHOLD, 256 << 20);
    mallopt(M_ARENA_MAX, 1); // other threads would have heaps of small pages
    takeLargePages();
}

} // namespace apps
