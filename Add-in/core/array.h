#pragma once
// VB's dynamic array: unallocated at first, then with a lower bound.
#include "Basic/runtime_error.h"
#include <cstdint>
#include <utility>
#include <vector>

namespace fernwick {

/// Error 9 for the bounds or an element of an unallocated array, and for an index out of bounds.
template <class T>
class Array {
public:
    /// Maximum size of an array: counts come from files and registry values that are not trusted.
    static constexpr std::int32_t kMostElements = 1 << 20;

    Array() = default;
    /// An array of these elements from index `lower`.
    Array(std::int32_t lower, std::vector<T> elements)
        : allocated_(true), lower_(lower), elements_(std::move(elements)) {}

    /// Replaces the array by new elements. Error 9 for an upper bound more than one below the lower one, error 7 for
    /// more than kMostElements.
    void ReDim(std::int32_t lower, std::int32_t upper) {
        const auto count = std::int64_t{upper} - lower + 1;
        if (count < 0) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        if (count > kMostElements) throw basic::RuntimeError(basic::kOutOfMemory);
        *this = Array(lower, std::vector<T>(std::size_t(count)));
    }
    /// Appends an element. An unallocated array starts at index 0. Error 7 beyond kMostElements.
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
