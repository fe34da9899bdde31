#pragma once
// What members of the library Scripting have in common.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/objects/library_object.h"
#include "Components/Tamarik/values/encoding.h"
#include <string>

namespace tamarik {

/// Calls a member. The library reports files that are open or read-only by error 70, unlike the statements of the language.
template <auto Member>
void guarded(LibraryObject& object, MemberCall& call) {
    try {
        Member(object, call);
    } catch (const basic::RuntimeError& error) {
        if (error.Number != basic::kFileAlreadyOpen && error.Number != basic::kPathFileAccessError) throw;
        throw basic::RuntimeError(basic::kPermissionDenied);
    }
}

/// A member that devices do not have.
inline void absentMember(LibraryObject&, MemberCall&) { throw basic::RuntimeError(basic::kActionNotSupported); }

/// The text of an argument; "" if it was omitted.
[[nodiscard]] inline std::u16string textArgument(MemberCall& call, std::size_t argument) {
    if (call[argument].isMissing()) return {};
    const HeldText text(call.session.heap, textIn(call.session, call[argument]));
    return std::u16string(unitsOf(text));
}

[[nodiscard]] inline bool flagOr(const Variant& v, bool omitted) {
    return v.isMissing() ? omitted : longOf(v, image::BaseType::Boolean) != 0;
}

/// The path in the store of an argument. Errors 5 and 52.
[[nodiscard]] inline std::string pathArgument(MemberCall& call, std::size_t argument) {
    const std::u16string path = textArgument(call, argument);
    requireArgument(!path.empty());
    return call.session.files.resolve(toUtf8(path));
}

inline void returnText(MemberCall& call, std::u16string_view text) { call.result = variantOfText(call.session, text); }
inline void returnUtf8(MemberCall& call, std::string_view text) {
    call.result = ofText(madeOfUtf8(call.session, text));
}

} // namespace tamarik
