#include "Components/Tamarik/objects/err_object.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/encoding.h"
#include "Components/Tamarik/values/held.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_text.h"
#include <utility>

namespace tamarik {

namespace {

constexpr std::int32_t kMostErrorNumber = 65535;

std::string utf8Of(MemberCall& call, std::size_t argument) {
    if (call[argument].isMissing()) return {};
    const HeldText text(call.session.heap, textOf(call.session.heap, call[argument]));
    return toUtf8(unitsOf(text));
}

Variant textResult(MemberCall& call, std::string_view utf8) { return ofText(makeTextOfUtf8(call.session.heap, utf8)); }

void raise(LibraryObject&, MemberCall& call) {
    const std::int32_t number = longOf(call[0], image::BaseType::Long);
    if (number == 0 || number > kMostErrorNumber) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    ErrorState state;
    state.number = number;
    state.source = utf8Of(call, 1);
    if (state.source.empty()) state.source = call.session.project;
    state.description = utf8Of(call, 2);
    state.helpFile = utf8Of(call, 3);
    if (!call[4].isMissing()) state.helpContext = longOf(call[4], image::BaseType::Long);
    throw RaisedError(std::move(state));
}

} // namespace

std::span<const LibraryMember> ErrObject::members() const {
    static constexpr LibraryMember kMembers[] = {
        {"Number", "", LibraryMember::Read,
         [](LibraryObject&, MemberCall& call) { call.result = ofNumber(call.session.err.number); }},
        {"Number", "Value", LibraryMember::Write,
         [](LibraryObject&, MemberCall& call) { call.session.err.number = longOf(call[0], image::BaseType::Long); }},
        {"Description", "", LibraryMember::Read,
         [](LibraryObject&, MemberCall& call) { call.result = textResult(call, call.session.err.description); }},
        {"Description", "Value", LibraryMember::Write,
         [](LibraryObject&, MemberCall& call) { call.session.err.description = utf8Of(call, 0); }},
        {"Source", "", LibraryMember::Read,
         [](LibraryObject&, MemberCall& call) { call.result = textResult(call, call.session.err.source); }},
        {"Source", "Value", LibraryMember::Write,
         [](LibraryObject&, MemberCall& call) { call.session.err.source = utf8Of(call, 0); }},
        {"LastDllError", "", LibraryMember::Read,
         [](LibraryObject&, MemberCall& call) { call.result = ofNumber(call.session.err.lastDllError); }},
        {"HelpFile", "", LibraryMember::Read,
         [](LibraryObject&, MemberCall& call) { call.result = textResult(call, call.session.err.helpFile); }},
        {"HelpFile", "Value", LibraryMember::Write,
         [](LibraryObject&, MemberCall& call) { call.session.err.helpFile = utf8Of(call, 0); }},
        {"HelpContext", "", LibraryMember::Read,
         [](LibraryObject&, MemberCall& call) { call.result = ofNumber(call.session.err.helpContext); }},
        {"HelpContext", "Value", LibraryMember::Write,
         [](LibraryObject&, MemberCall& call) {
             call.session.err.helpContext = longOf(call[0], image::BaseType::Long);
         }},
        {"Clear", "", LibraryMember::Read, [](LibraryObject&, MemberCall& call) { call.session.err = {}; }},
        {"Raise", "Number ? Source Description HelpFile HelpContext", LibraryMember::Read, &raise},
    };
    return kMembers;
}

} // namespace tamarik
