#include "Components/QLToolkit/names/library_scopes.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/names/library_constants.h"
#include <algorithm>
#include <array>

namespace qltoolkit {

namespace {

struct NamedType {
    std::string_view name;
    ValueType value;
};
constexpr std::array kSimpleTypes{
    NamedType{"Boolean", ValueType::Boolean},   NamedType{"Byte", ValueType::Byte},
    NamedType{"Integer", ValueType::Integer},   NamedType{"Long", ValueType::Long},
    NamedType{"Single", ValueType::Single},     NamedType{"Double", ValueType::Double},
    NamedType{"Currency", ValueType::Currency}, NamedType{"Date", ValueType::Date},
    NamedType{"String", ValueType::String},     NamedType{"Variant", ValueType::Variant},
    NamedType{"Object", ValueType::Object},     NamedType{"OLE_COLOR", ValueType::Long},
    NamedType{"Any", ValueType::Variant},
};

class LibraryScopes {
public:
    LibraryScopes(Program& program, const language::Library& library)
        : program_(program), library_(library), scope_(program.newScope(ScopeKind::Library)) {
        scope_.name = symbolOf(library.name);
        // A library that is described in part may have more constants, too.
        scope_.open = std::any_of(library.groups.begin(), library.groups.end(),
                                  [](const language::Group& group) { return group.open; });
        if (!library.onDevices) scope_.instead = &library.instead;
        program.libraries.push_back(&scope_);
    }

    void declareGroups() {
        for (const auto& group : library_.groups) groups_.push_back(&declareGroup(group));
    }

    void declareMembers() {
        for (std::size_t i = 0; i < groups_.size(); ++i)
            for (const auto& member : library_.groups[i].members) declare(library_.groups[i], *groups_[i], member);
        for (const auto* scope : groups_) linkTexts(*scope);
    }

private:
    Symbol symbolOf(std::string_view name) {
        if (name.starts_with('[')) name = name.substr(1, name.size() - 2);
        return program_.symbols.intern(name);
    }

    Scope& declareGroup(const language::Group& group) {
        const bool isClass = group.kind == language::GroupKind::Class, isEnum = group.kind == language::GroupKind::Enum;
        Scope& scope = program_.newScope(isEnum    ? ScopeKind::Enum
                                         : isClass ? ScopeKind::LibraryClass
                                                   : ScopeKind::LibraryModule);
        scope.name = symbolOf(group.name);
        scope.creatable = group.creatable;
        scope.open = group.open;
        Entity& entity = newEntity(isEnum ? EntityKind::Enum : EntityKind::Module, scope.name, scope_);
        entity.inner = &scope;
        entity.onDevices = library_.onDevices && group.onDevices;
        entity.instead = group.onDevices ? &library_.instead : &group.instead;
        if (isEnum) entity.type = {ValueType::Long, false, true, scope.number};
        if (isClass) entity.type = {ValueType::Object, false, false, scope.number};
        scope_.types.add(scope.name, &entity);
        return scope;
    }

    Entity& newEntity(EntityKind kind, Symbol name, Scope& owner) {
        Entity& entity = program_.newEntity(kind, name);
        entity.isPublic = true;
        entity.owner = &owner;
        return entity;
    }

    void declare(const language::Group& group, Scope& scope, const language::Member& member) {
        Entity& entity = newEntity(kindOf(member.kind), symbolOf(member.name), scope);
        entity.onDevices = member.onDevices;
        entity.instead = &member.instead;
        entity.type = typeNamed(member.type);
        entity.type.isArray = member.isArray;
        if (member.kind == language::MemberKind::Constant)
            declareConstant(entity, group, scope, member);
        else
            declareCallable(entity, member);
        (member.kind == language::MemberKind::Event ? scope.events : scope.names).add(entity.name, &entity);
        if (member.isDefault) scope.defaultMember = &entity;
        if (member.enumerates) scope.enumerator = &entity;
        if (group.kind != language::GroupKind::Class || group.global) scope_.names.add(entity.name, &entity);
    }

    static EntityKind kindOf(language::MemberKind kind) {
        switch (kind) {
        case language::MemberKind::Property: return EntityKind::Property;
        case language::MemberKind::Constant: return EntityKind::Constant;
        case language::MemberKind::Event: return EntityKind::Event;
        default: return EntityKind::Procedure;
        }
    }

    void declareConstant(Entity& entity, const language::Group& group, Scope& scope, const language::Member& member) {
        if (group.kind == language::GroupKind::Enum) entity.type = {ValueType::Long, false, true, scope.number};
        entity.constant = &program_.newConstant();
        entity.constant->value = libraryConstant(member.value);
        entity.constant->progress = ConstantState::Progress::Done;
        if (member.type.empty() && !entity.type.isEnum) entity.type = {typeOf(entity.constant->value)};
    }

    void declareCallable(Entity& entity, const language::Member& member) {
        auto* callable = program_.arena.make<Callable>();
        callable->parameters = parametersOf(member);
        const bool hasValue =
            member.kind == language::MemberKind::Function || member.kind == language::MemberKind::Property;
        if (hasValue) callable->result = entity.type;
        if (!hasValue) entity.type = {ValueType::None};
        if (member.kind != language::MemberKind::Property || member.readable) entity.get = callable;
        if (member.kind == language::MemberKind::Property && member.writable) entity.let = entity.set = callable;
    }

    Span<ParameterInfo> parametersOf(const language::Member& member) {
        parameters_.clear();
        for (const auto& parameter : member.parameters) {
            Type type = typeNamed(parameter.type);
            type.isArray = parameter.isArray && !parameter.paramArray;
            parameters_.push_back({symbolOf(parameter.name), type, !parameter.byRef, parameter.optional,
                                   parameter.paramArray, parameter.type == "Any"});
            if (!parameter.defaultValue.empty()) setDefault(parameters_.back(), parameter.defaultValue);
        }
        return program_.arena.copy(parameters_.data(), parameters_.size());
    }

    void setDefault(ParameterInfo& info, const std::string& text) {
        info.defaultText = &text;
        if (text.starts_with("vb")) info.defaultName = symbolOf(text);
    }

    Type typeNamed(std::string_view name) {
        if (name.empty()) return {};
        for (const auto& simple : kSimpleTypes)
            if (basic::equalNoCase(simple.name, name)) return {simple.value};
        name = name.substr(name.find_last_of('.') + 1);
        const Symbol symbol = symbolOf(name);
        if (const Entity* own = scope_.types.find(symbol)) return own->type;
        for (const auto* library : program_.libraries)
            if (const Entity* found = library->types.find(symbol)) return found->type;
        return {ValueType::Unknown};
    }

    // A function may be described twice: Left gives a Variant, Left$ a String.
    void linkTexts(const Scope& scope) {
        scope.names.forEach([&](Symbol name, Entity& entity) {
            const auto spelling = program_.symbols.spelling(name);
            if (!spelling.ends_with('$')) return;
            Entity* plain = scope.names.find(symbolOf(spelling.substr(0, spelling.size() - 1)));
            if (plain) plain->text = &entity;
        });
    }

    Program& program_;
    const language::Library& library_;
    Scope& scope_;
    std::vector<Scope*> groups_;
    std::vector<ParameterInfo> parameters_;
};

} // namespace

void addLibraries(Program& program, const std::vector<const language::Library*>& libraries) {
    std::deque<LibraryScopes> added;
    for (const auto* library : libraries) added.emplace_back(program, *library).declareGroups();
    for (auto& library : added) library.declareMembers();
}

} // namespace qltoolkit
