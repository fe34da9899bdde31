#include "Components/Tamarik/objects/library_object.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include <array>

namespace tamarik {

namespace {

constexpr std::size_t kMostArguments = 60;
/// No class of the runtime has a member with more parameters.
constexpr std::size_t kMostSimpleArguments = 16;

struct Parameters {
    std::array<std::string_view, kMostArguments> names;
    std::size_t count = 0, required = 0;
};

Parameters parametersOf(std::string_view text) {
    Parameters parameters;
    bool isOptional = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word == "?")
            isOptional = true;
        else
            parameters.names[parameters.count++] = word;
        if (!isOptional) parameters.required = parameters.count;
    }
    return parameters;
}

const LibraryMember& find(const LibraryObject& object, std::string_view name, LibraryMember::Uses use) {
    bool isKnown = false;
    for (const LibraryMember& member : object.members()) {
        if (!basic::equalNoCase(member.name, name)) continue;
        if (member.use == use) return member;
        isKnown = true;
    }
    throw basic::RuntimeError(isKnown && use == LibraryMember::Write ? basic::kPropertyReadOnly
                                                                     : basic::kPropertyOrMethodNotSupported);
}

std::size_t placeOf(const Parameters& parameters, std::string_view name) {
    for (std::size_t i = 0; i < parameters.count; ++i)
        if (basic::equalNoCase(parameters.names[i], name)) return i;
    throw basic::RuntimeError(basic::kNamedArgumentNotFound);
}

} // namespace

Object* LibraryObject::walk(Heap&) { throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported); }

FoundMember findMember(const LibraryObject& object, std::string_view name, image::LateUse use) {
    const bool writes = use == image::LateUse::Let || use == image::LateUse::Set;
    const LibraryMember& member = find(object, name, writes ? LibraryMember::Write : LibraryMember::Read);
    const Parameters parameters = parametersOf(member.parameters);
    return {&member, parameters.count, parameters.required};
}

Variant callFound(Session& session, LibraryObject& object, const FoundMember& found,
                  std::span<const Variant* const> positional) {
    if (positional.size() > found.parameters) throw basic::RuntimeError(basic::kWrongNumberOfArguments);
    std::array<Variant, kMostSimpleArguments> arguments;
    for (std::size_t i = 0; i < found.parameters; ++i)
        arguments[i] = i < positional.size() ? *positional[i] : missing();
    for (std::size_t i = 0; i < found.required; ++i)
        if (arguments[i].isMissing()) throw basic::RuntimeError(basic::kArgumentNotOptional);
    MemberCall call{session, {arguments.data(), found.parameters}, {}};
    found.member->call(object, call);
    return call.result;
}

Variant callMember(Session& session, LibraryObject& object, std::string_view name, image::LateUse use,
                   std::span<const Variant* const> positional, std::span<const NamedArgument> named) {
    const bool writes = use == image::LateUse::Let || use == image::LateUse::Set;
    const LibraryMember& member = find(object, name, writes ? LibraryMember::Write : LibraryMember::Read);
    const Parameters parameters = parametersOf(member.parameters);
    if (positional.size() > parameters.count) throw basic::RuntimeError(basic::kWrongNumberOfArguments);
    std::array<Variant, kMostArguments> arguments;
    arguments.fill(missing());
    for (std::size_t i = 0; i < positional.size(); ++i) arguments[i] = *positional[i];
    for (const NamedArgument& argument : named) arguments[placeOf(parameters, argument.name)] = *argument.value;
    for (std::size_t i = 0; i < parameters.required; ++i)
        if (arguments[i].isMissing()) throw basic::RuntimeError(basic::kArgumentNotOptional);
    MemberCall call{session, {arguments.data(), parameters.count}, {}};
    member.call(object, call);
    return call.result;
}

} // namespace tamarik
