#pragma once
// VB's dynamic array: not allocated at first, then with a lower bound of its own.
#include "Basic/runtime_error.h"
#include <cstdint>
#include <utility>
#include <vector>

namespace fernwick {

/// Error 9 for the bounds or an element of an array that is not allocated, and for an index outside of the bounds.
template <class T>
class Array {
public:
    /// What one array holds at most: counts come from files and registry values that anybody may have written.
    static constexpr std::int32_t kMostElements = 1 << 20;

    Array() = default;
    /// The array from `lower` on with these elements.
    Array(std::int32_t lower, std::vector<T> elements)
        : allocated_(true), lower_(lower), elements_(std::move(elements)) {}

    /// All elements become those of a new array. Error 9 for an upper bound more than one below the lower one,
    /// error 7 for more than kMostElements.
    void ReDim(std::int32_t lower, std::int32_t upper) {
        const auto count = std::int64_t{upper} - lower + 1;
        if (count < 0) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        if (count > kMostElements) throw basic::RuntimeError(basic::kOutOfMemory);
        *this = Array(lower, std::vector<T>(std::size_t(count)));
    }
    /// One element more; all that stand stay. The first one of an array that is not allocated stands at 0. Error 7 as
    /// above.
    void Append(T element) {
        if (elements_.size() >= std::size_t(kMostElements)) throw basic::RuntimeError(basic::kOutOfMemory);
        elements_.push_back(std::move(element));
        allocated_ = true;
    }
    bool isAllocated() const { return allocated_; }
    std::int32_t LBound() const {
        requireAllocated();
        return lower_;
    }
    std::int32_t UBound() const {
        requireAllocated();
        return lower_ + std::int32_t(elements_.size()) - 1;
    }
    const T& operator[](std::int32_t index) const {
        const auto at = std::int64_t{index} - lower_;
        if (at < 0 || at >= std::int64_t(elements_.size())) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        return elements_[std::size_t(at)];
    }
    T& operator[](std::int32_t index) { return const_cast<T&>(std::as_const(*this)[index]); }

    auto begin() const { return elements_.begin(); }
    auto end() const { return elements_.end(); }

private:
    void requireAllocated() const {
        if (!allocated_) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    }

    bool allocated_ = false;
    std::int32_t lower_ = 0;
    std::vector<T> elements_;
};

} // namespace fernwick
