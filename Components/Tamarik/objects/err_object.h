#pragma once
// The Err object: a view of the error state of the machine.
#include "Components/Tamarik/objects/library_object.h"

namespace tamarik {

class ErrObject final : public LibraryObject {
public:
    [[nodiscard]] std::string_view className() const override { return "ErrObject"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
    [[nodiscard]] std::string_view defaultMember() const override { return "Number"; }
    void releaseMembers(Heap&) override {}
};

} // namespace tamarik
