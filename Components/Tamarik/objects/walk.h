#pragma once
// What For Each walks with: a hidden object that yields one element after the other.
#include "Components/Tamarik/objects/library_object.h"
#include "Components/Tamarik/values/array_block.h"

namespace tamarik {

class Walk : public LibraryObject {
public:
    [[nodiscard]] std::span<const LibraryMember> members() const override { return {}; }
    /// Stores the next element, a new reference; false if there is none.
    virtual bool next(Heap& heap, Variant& element) = 0;
};

/// Walks over an array, which is locked meanwhile.
class ArrayWalk final : public Walk {
public:
    explicit ArrayWalk(ArrayBlock& array);
    [[nodiscard]] std::string_view className() const override { return "IEnumVARIANT"; }
    bool next(Heap& heap, Variant& element) override;
    void releaseMembers(Heap& heap) override;

private:
    ArrayBlock* array_;
    std::uint32_t place_ = 0;
};

} // namespace tamarik
