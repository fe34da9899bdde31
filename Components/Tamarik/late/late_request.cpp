#include "Components/Tamarik/late/late_request.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include <algorithm>
#include <utility>

namespace tamarik {

namespace {

using image::ClassMember;
using image::LateUse;
using image::MemberUse;

bool serves(MemberUse member, LateUse use, bool isExact) {
    switch (member) {
    case MemberUse::Method: return use == LateUse::Call || (use == LateUse::Get && !isExact);
    case MemberUse::Get: return use == LateUse::Get || (use == LateUse::Call && !isExact);
    case MemberUse::Let: return use == LateUse::Let;
    case MemberUse::Set: return use == LateUse::Set;
    case MemberUse::Field: return use != LateUse::Call || !isExact;
    }
    return false;
}

const ClassMember* findMember(const Execution& m, std::uint32_t classNumber, std::string_view name, LateUse use,
                              bool isExact) {
    for (const ClassMember& member : m.program->code().classes[classNumber - 1].members)
        if (member.isPublic && serves(member.use, use, isExact) &&
            basic::equalNoCase(m.program->text(member.name), name))
            return &member;
    return nullptr;
}

/// The text with the name of the default member of an object's class. Error 438.
std::uint32_t defaultOf(const Execution& m, std::uint32_t classNumber) {
    const std::uint32_t name = m.program->code().classes[classNumber - 1].defaultMember;
    if (name == image::kNone) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    return name;
}

/// The place among the parameters. Error 448, also for one that has an argument.
std::size_t placeOf(const Program& program, const ClassMember& member, std::string_view name,
                    const std::vector<Variant>& placed) {
    const auto found = std::ranges::find_if(member.parameters, [&](const image::MemberParameter& parameter) {
        return parameter.name != image::kNone && basic::equalNoCase(program.text(parameter.name), name);
    });
    const auto place = static_cast<std::size_t>(found - member.parameters.begin());
    if (place == member.parameters.size() || !placed[place].isMissing())
        throw basic::RuntimeError(basic::kNamedArgumentNotFound);
    return place;
}

} // namespace

std::string_view LateRequest::nameIn(const Program& program) const {
    return givenName.empty() ? program.text(name) : std::string_view(givenName);
}

const ClassMember* memberFor(Execution& m, const LateRequest& request, LateUse use) {
    const std::uint32_t classNumber = request.object.object->classNumber;
    if (!request.givenName.empty()) return findMember(m, classNumber, request.givenName, use, request.isExact);
    const std::uint32_t name = request.name == image::kNone ? defaultOf(m, classNumber) : request.name;
    const std::uint64_t key =
        std::uint64_t{classNumber} << 40 | std::uint64_t{name} << 8 | static_cast<std::uint64_t>(use);
    if (const auto known = m.memberCache.find(key); known != m.memberCache.end()) return known->second;
    const ClassMember* const found = findMember(m, classNumber, m.program->text(name), use, false);
    m.memberCache.emplace(key, found);
    return found;
}

void arrangeArguments(const Program& program, LateRequest& request, const ClassMember& member) {
    const std::size_t count = member.parameters.size(), firstNamed = request.firstNamed();
    if (request.named.empty() && (!request.assigns() || request.arguments.size() >= count)) return;
    if (member.hasParamArray) throw basic::RuntimeError(basic::kNamedArgumentsNotSupported);
    if (request.arguments.size() > count) throw basic::RuntimeError(basic::kWrongNumberOfArguments);
    std::vector<Variant> placed(count, missing());
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < request.arguments.size(); ++i) {
        std::size_t place = i;
        if (request.assigns() && i + 1 == request.arguments.size())
            place = count - 1;
        else if (i >= firstNamed)
            place = placeOf(program, member, program.text(request.named[i - firstNamed]), placed);
        placed[place] = request.arguments[i];
        places.push_back(place);
    }
    std::vector<Slot*> variables(count, nullptr);
    for (std::size_t i = 0; i < std::min(places.size(), request.variables.size()); ++i)
        variables[places[i]] = request.variables[i];
    request.arguments = std::move(placed);
    request.variables = std::move(variables);
    request.named.clear();
}

} // namespace tamarik
