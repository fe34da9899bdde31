#pragma once
// Objects of classes of the runtime: their members are found by name.
#include "Components/Image/code/instruction.h"
#include "Components/Tamarik/natives/session.h"
#include "Components/Tamarik/values/object.h"
#include "Components/Tamarik/values/variant.h"
#include <span>
#include <string_view>

namespace tamarik {

class LibraryObject;

/// The arguments of a member, in the order of its parameters; omitted ones are Missing. Of Let and Set the last is the value.
struct MemberCall {
    Session& session;
    std::span<const Variant> arguments;
    Variant result; ///< a new reference

    [[nodiscard]] const Variant& operator[](std::size_t i) const { return arguments[i]; }
};

struct LibraryMember {
    enum Uses : std::uint8_t { Read = 1, Write = 2 }; ///< as a function or property; Let or Set

    std::string_view name;
    std::string_view parameters; ///< names, separated by blanks; those after "?" are optional
    Uses use = Read;
    void (*call)(LibraryObject& object, MemberCall& call) = nullptr;
};

class LibraryObject : public Object {
public:
    [[nodiscard]] virtual std::span<const LibraryMember> members() const = 0;
    /// Empty for a class without one.
    [[nodiscard]] virtual std::string_view defaultMember() const { return {}; }
    /// Returns a new object that For Each walks with. Error 438 for a class that cannot be walked over.
    [[nodiscard]] virtual Object* walk(Heap& heap);
};

/// A named argument, such as Key:="a".
struct NamedArgument {
    std::string_view name;
    const Variant* value;
};

/// A member with its parameters counted, which late binding remembers.
struct FoundMember {
    const LibraryMember* member = nullptr;
    std::size_t parameters = 0, required = 0;
};

/// Error 438, or 383 for a property that cannot be assigned to.
[[nodiscard]] FoundMember findMember(const LibraryObject& object, std::string_view name, image::LateUse use);

/// Calls a member whose arguments have no names. Errors as callMember.
[[nodiscard]] Variant callFound(Session& session, LibraryObject& object, const FoundMember& found,
                                std::span<const Variant* const> positional);

/// Calls a member. Errors 438, 448, 449, 450, and those of the member. The result is a new reference.
[[nodiscard]] Variant callMember(Session& session, LibraryObject& object, std::string_view name, image::LateUse use,
                                 std::span<const Variant* const> positional, std::span<const NamedArgument> named);

} // namespace tamarik
