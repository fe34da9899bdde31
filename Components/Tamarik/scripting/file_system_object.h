#pragma once
// The FileSystemObject class of the library Scripting: the files of the application's folder.
#include "Components/Tamarik/numbers/random.h"
#include "Components/Tamarik/objects/library_object.h"

namespace tamarik {

class FileSystemObject final : public LibraryObject {
public:
    explicit FileSystemObject(std::uint32_t seed) : names_(seed) {}

    [[nodiscard]] std::string_view className() const override { return "FileSystemObject"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
    void releaseMembers(Heap&) override {}

    /// A name that is hardly in use; Rnd is not affected.
    [[nodiscard]] std::string temporaryName();

private:
    Random names_;
};

} // namespace tamarik
