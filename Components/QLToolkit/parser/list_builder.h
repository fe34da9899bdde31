#pragma once
// Builds lists of unknown length before they are copied into the arena.
#include "Components/QLToolkit/source/arena.h"
#include <vector>

namespace qltoolkit {

/// Collects one list at the end of a vector that is shared by all lists of its type, including nested ones.
template <class T>
class ListBuilder {
public:
    explicit ListBuilder(std::vector<T>& shared) : shared_(shared), base_(shared.size()) {}
    ~ListBuilder() { shared_.erase(shared_.begin() + static_cast<std::ptrdiff_t>(base_), shared_.end()); }
    ListBuilder(const ListBuilder&) = delete;

    void add(const T& item) { shared_.push_back(item); }
    [[nodiscard]] std::size_t size() const { return shared_.size() - base_; }
    // By value: parsing more moves the items.
    [[nodiscard]] T operator[](std::size_t i) const { return shared_[base_ + i]; }
    [[nodiscard]] T& back() { return shared_.back(); }
    [[nodiscard]] Span<T> finish(Arena& arena) const { return arena.copy(shared_.data() + base_, size()); }

private:
    std::vector<T>& shared_;
    std::size_t base_;
};

} // namespace qltoolkit
