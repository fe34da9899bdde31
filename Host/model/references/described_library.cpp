#include "Host/model/references/described_library.h"
#include "Components/Language/foreign.h"
#include <algorithm>
#include <iterator>

namespace host {
namespace {

language::Parameter parameterOf(const TypeParameter& from) {
    language::Parameter parameter;
    parameter.name = from.name;
    parameter.type = from.type == "Variant" ? "" : from.type;
    parameter.optional = from.optional;
    parameter.byRef = from.byRef;
    return parameter;
}

language::Member memberOf(language::MemberKind kind, const TypeMember& from) {
    language::Member member;
    member.kind = kind;
    member.name = from.name;
    member.type = from.type == "Variant" ? "" : from.type;
    member.help = from.help;
    member.writable = !from.readOnly;
    for (const auto& parameter : from.parameters) member.parameters.push_back(parameterOf(parameter));
    return member;
}

void addMembers(const TypeClass& from, language::Group& to) {
    for (const auto& one : from.properties) to.members.push_back(memberOf(language::MemberKind::Property, one));
    for (const auto& one : from.methods)
        to.members.push_back(
            memberOf(one.type.empty() ? language::MemberKind::Sub : language::MemberKind::Function, one));
    for (auto& member : to.members) member.isDefault = member.isDefault || member.name == from.defaultMember;
    for (const auto& one : from.events) to.members.push_back(memberOf(language::MemberKind::Event, one));
}

language::Group groupOf(language::GroupKind kind, const TypeClass& from) {
    language::Group group;
    group.kind = kind;
    group.name = from.name;
    group.help = from.help;
    addMembers(from, group);
    return group;
}

language::Group formOf(const TypeClass& from) {
    language::Group form;
    if (const auto* extended = language::findClass(from.extends))
        std::copy_if(extended->members.begin(), extended->members.end(), std::back_inserter(form.members),
                     [](const auto& member) { return member.onDevices; });
    form.kind = language::GroupKind::Class;
    form.name = from.name;
    form.help = from.help;
    addMembers(from, form);
    return form;
}

language::Group enumerationOf(const TypeEnumeration& from) {
    language::Group group;
    group.kind = language::GroupKind::Enum;
    group.name = from.name;
    for (const auto& value : from.values) {
        auto& member = group.members.emplace_back();
        member.kind = language::MemberKind::Constant;
        member.name = value.name;
        member.type = "Long";
        member.value = std::to_string(value.value);
    }
    return group;
}

} // namespace

language::Library libraryOf(const TypeDescription& description) {
    language::Library library;
    library.name = description.name + (description.classes.empty() ? "" : "Ctl");
    library.help = description.help;
    for (const auto& one : description.modules) library.groups.push_back(groupOf(language::GroupKind::Module, one));
    for (const auto& one : description.enumerations) library.groups.push_back(enumerationOf(one));
    for (const auto& one : description.classes) library.groups.push_back(groupOf(language::GroupKind::Class, one));
    if (description.form) library.groups.push_back(formOf(*description.form));
    return library;
}

} // namespace host
