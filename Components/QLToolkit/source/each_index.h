#pragma once
// Spreads independent work over threads.
#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

namespace qltoolkit {

/// Calls `makeWork()` on each of at most `threads` threads, and the function it returns for each index below `count`
/// once. Returns when all is done. The work must not throw.
template <class MakeWork>
void forEachIndex(std::size_t count, unsigned threads, const MakeWork& makeWork) {
    std::atomic<std::size_t> next{0};
    const auto run = [&] {
        auto work = makeWork();
        for (std::size_t i; (i = next++) < count;) work(i);
    };
    std::vector<std::jthread> helpers;
    for (unsigned i = 1; i < threads && i < count; ++i) helpers.emplace_back(run);
    run();
}

} // namespace qltoolkit
