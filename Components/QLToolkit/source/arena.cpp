#include "Components/QLToolkit/source/arena.h"
#include <algorithm>

namespace qltoolkit {

namespace {
constexpr std::size_t kFirstChunk = 16 * 1024;
constexpr std::size_t kLargestChunk = 4 * 1024 * 1024;
} // namespace

// Chunks double in size up to a limit: a small file needs little memory, a large one few allocations.
std::uintptr_t Arena::grow(std::size_t size) {
    const std::size_t wanted = std::clamp(footprint_, kFirstChunk, kLargestChunk);
    const std::size_t chunk = std::max(wanted, size);
    chunks_.emplace_back(new std::byte[chunk]);
    footprint_ += chunk;
    next_ = reinterpret_cast<std::uintptr_t>(chunks_.back().get());
    end_ = next_ + chunk;
    return next_; // aligned for every type
}

} // namespace qltoolkit
