// The members of classes as late binding finds them.
#include "Components/QLToolkit/code/linker.h"
#include "Components/QLToolkit/names/constants.h"
#include <bit>

namespace qltoolkit {

using image::BaseType;
using image::DefaultValue;
using image::MemberUse;

namespace {

std::uint64_t bitsOf(std::int32_t number) { return static_cast<std::uint32_t>(number); }
std::uint64_t bitsOf(double fraction) { return std::bit_cast<std::uint64_t>(fraction); }

} // namespace

DefaultValue Linker::defaultOf(const ConstantValue& value) {
    const BaseType type = baseTypeOf(typeOf(value));
    switch (type) {
    case BaseType::Boolean: return {type, bitsOf(std::get<bool>(value) ? -1 : 0)};
    case BaseType::Byte: return {type, bitsOf(std::get<basic::Byte>(value))};
    case BaseType::Integer: return {type, bitsOf(std::get<basic::Integer>(value))};
    case BaseType::Long: return {type, bitsOf(std::get<basic::Long>(value))};
    case BaseType::Single: return {type, bitsOf(std::get<basic::Single>(value))};
    case BaseType::Double: return {type, bitsOf(std::get<basic::Double>(value))};
    case BaseType::Date: return {type, bitsOf(std::get<basic::Date>(value).days)};
    case BaseType::Currency: return {type, static_cast<std::uint64_t>(std::get<basic::Currency>(value).scaled)};
    case BaseType::Text: return {type, text(std::get<std::string>(value))};
    case BaseType::Variant: return {type, std::holds_alternative<NullValue>(value) ? 1U : 0U};
    default: return {}; // Nothing
    }
}

image::MemberParameter Linker::parameter(const ParameterInfo& given, SourceModule& module) {
    image::MemberParameter made{baseTypeOf(given.type.value), text(spelling(given.name)), given.optional, {}};
    if (!given.defaultValue) return made;
    // A default that does not fit is reported where it is declared.
    if (const auto value = constants_.valueOf(*given.defaultValue, module))
        made.byDefault =
            defaultOf(given.type.value == ValueType::Unknown ? *value : convert(*value, given.type.value).value);
    return made;
}

image::ClassMember Linker::member(const Entity& entity, const Callable& callable, MemberUse use) {
    image::ClassMember made;
    made.name = text(spelling(entity.name));
    made.use = use;
    made.isPublic = entity.isPublic && !isFriend(callable);
    made.target = callable.number;
    const bool assigns = use == MemberUse::Let || use == MemberUse::Set;
    if (!assigns && returnsRecord(callable)) made.parameters.push_back({BaseType::Record});
    for (const auto& given : callable.parameters) {
        made.parameters.push_back(parameter(given, *entity.owner->source));
        made.hasParamArray |= given.paramArray;
    }
    if (assigns)
        made.parameters.push_back({baseTypeOf(callable.result.value)});
    else
        made.result = baseTypeOf(callable.result.value);
    return made;
}

void Linker::addAssignments(image::ClassInfo& made, const Entity& property) {
    if (property.let) made.members.push_back(member(property, *property.let, MemberUse::Let));
    if (property.set) made.members.push_back(member(property, *property.set, MemberUse::Set));
}

void Linker::addMembers(image::ClassInfo& made, const SourceModule& module) {
    for (const auto& [entity, decl] : module.callables) {
        if (decl->kind != DeclKind::Procedure) continue;
        const auto add = [&, entity = entity, decl = decl](const Callable* callable, MemberUse use) {
            if (callable && callable->body == decl) made.members.push_back(member(*entity, *callable, use));
        };
        add(entity->get, entity->kind == EntityKind::Property ? MemberUse::Get : MemberUse::Method);
        add(entity->let, MemberUse::Let);
        add(entity->set, MemberUse::Set);
    }
    for (const auto& [entity, decl] : module.variables) {
        if (!isLateField(*entity)) continue;
        // The first member that serves is used: to read, the procedure if there is one, and to assign, the field.
        const auto* reader = layout_.readerOf(*entity);
        if (reader) made.members.push_back(member(*entity, *reader, MemberUse::Get));
        image::ClassMember field;
        field.name = text(spelling(entity->name));
        field.use = MemberUse::Field;
        field.isPublic = entity->isPublic;
        field.target = entity->place;
        field.result = baseTypeOf(entity->type.value);
        made.members.push_back(field);
        if (const auto* access = layout_.accessTo(*entity)) addAssignments(made, access->property);
    }
}

} // namespace qltoolkit
