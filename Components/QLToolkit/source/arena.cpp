#include "Components/QLToolkit/source/arena.h"
#include <algorithm>

namespace qltoolkit {

namespace {
constexpr std::size_t kFirstChunk = 4 * 1024;
constexpr std::size_t kLargestChunk = 1024 * 1024;
} // namespace

// Chunks grow with the arena up to a limit: little of the last one stays unused, and a large file needs few allocations.
std::uintptr_t Arena::grow(std::size_t size) {
    const std::size_t wanted = std::clamp(footprint_ / 8, kFirstChunk, kLargestChunk);
    const std::size_t chunk = std::max(wanted, size);
    chunks_.emplace_back(new std::byte[chunk]);
    footprint_ += chunk;
    next_ = reinterpret_cast<std::uintptr_t>(chunks_.back().get());
    end_ = next_ + chunk;
    return next_; // aligned for every type
}

} // namespace qltoolkit
