#include "Components/QLToolkit/insight/name_list.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/insight/description.h"
#include <algorithm>

namespace qltoolkit {

namespace {

NameKind kindOfModule(const Scope& scope) {
    if (!scope.isClass()) return NameKind::Module;
    return scope.source && scope.source->tree.source.kind() == FileKind::Form ? NameKind::Form : NameKind::Class;
}

NameKind kindOf(const Entity& entity) {
    switch (entity.kind) {
    case EntityKind::Variable: return NameKind::Variable;
    case EntityKind::Constant: return NameKind::Constant;
    case EntityKind::Procedure: return NameKind::Procedure;
    case EntityKind::Property: return NameKind::Property;
    case EntityKind::Event: return NameKind::Event;
    case EntityKind::Control: return NameKind::Control;
    case EntityKind::Enum: return NameKind::Enum;
    case EntityKind::Record: return NameKind::Type;
    case EntityKind::Module: return kindOfModule(*entity.inner);
    case EntityKind::Label: return NameKind::Label;
    case EntityKind::Library:
    case EntityKind::Project: break;
    }
    return NameKind::Library;
}

bool isVisible(const Entity& entity, bool isOwn) { return entity.isPublic || isOwn; }

} // namespace

void NameList::add(std::string name, NameKind kind) {
    if (!name.empty() && name[0] != '_' && name[0] != '?') names_.push_back({std::move(name), kind});
}

void NameList::add(const Entity& entity, const SourceText* local) {
    if (!isHidden(entity)) add(spellingOf(snapshot_, entity, local), kindOf(entity));
}

bool NameList::isHidden(const Entity& entity) const {
    const auto* member = snapshot_.describedMember(entity);
    return member && member->hidden;
}

void NameList::addNames(const Scope& scope, bool isOwn) {
    scope.names.forEach([&](Symbol, const Entity& entity) {
        if (isVisible(entity, isOwn)) add(entity);
    });
}

void NameList::addTypesIn(const SymbolMap<Entity>& types, bool isOwn) {
    types.forEach([&](Symbol, const Entity& type) {
        if (isVisible(type, isOwn) && type.kind == EntityKind::Enum) add(type);
    });
}

// Constants and enumerations of a class are no members of its objects.
void NameList::addObject(const Scope& object) {
    for (const Scope* scope = &object; scope; scope = scope->base)
        scope->names.forEach([&](Symbol, const Entity& entity) {
            if (entity.isPublic && entity.kind != EntityKind::Constant) add(entity);
        });
}

void NameList::addLibrary(const Scope& library) {
    addNames(library, false);
    library.types.forEach([&](Symbol, const Entity& type) {
        if (type.kind == EntityKind::Enum || !type.inner->isClass()) add(type);
    });
}

void NameList::addMembersOf(const MemberBase& base) {
    const bool isControl = base.entity && base.entity->kind == EntityKind::Control;
    if (base.isQualifier && !base.inner) return addGlobalNames();
    if (base.isQualifier) {
        if (base.inner->kind == ScopeKind::Library) return addLibrary(*base.inner);
        const bool isOwn = base.inner == &module_ || base.inner->kind == ScopeKind::Enum;
        addNames(*base.inner, isOwn);
        return addTypesIn(base.inner->types, isOwn);
    }
    if (base.type.isArray) {
        for (const auto* name : {"Count", "Item", "LBound", "UBound"})
            if (isControl) add(name, NameKind::Property);
        return;
    }
    const bool hasMembers = base.type.value == ValueType::Object || base.type.value == ValueType::Record;
    if (hasMembers && base.type.id != 0) addObject(snapshot_.program().scope(base.type.id));
}

void NameList::addControlsOf(const MemberBase& base) {
    if (base.isQualifier || base.type.value != ValueType::Object || base.type.id == 0) return;
    snapshot_.program().scope(base.type.id).names.forEach([&](Symbol, const Entity& entity) {
        if (entity.kind == EntityKind::Control) add(entity);
    });
}

void NameList::addEnum(const Type& type) { addNames(snapshot_.program().scope(type.id), true); }

void NameList::addGlobalNames() {
    const auto& program = snapshot_.program();
    for (const Scope* scope = &module_; scope; scope = scope->base) addNames(*scope, scope == &module_);
    addTypesIn(module_.types, true);
    program.topNames.forEach([&](Symbol, const Entity& entity) {
        const bool isName = entity.kind != EntityKind::Module || !entity.inner->isClass() || entity.inner->predeclared;
        if (isName) add(entity);
    });
    program.publicNames.forEach([&](Symbol, const Entity& entity) { add(entity); });
    addTypesIn(program.publicTypes, false);
    for (const auto* library : program.libraries) addLibrary(*library);
}

void NameList::addType(const Entity& entity, bool onlyCreatable) {
    const bool isClass = entity.kind == EntityKind::Module && entity.inner->isClass();
    if (onlyCreatable ? isClass && entity.inner->creatable : isClass || entity.kind != EntityKind::Module) add(entity);
}

void NameList::addTypesOf(const Entity& library, bool onlyCreatable) {
    if (library.kind == EntityKind::Project) {
        snapshot_.program().topNames.forEach([&](Symbol, const Entity& entity) {
            if (entity.kind == EntityKind::Module) addType(entity, onlyCreatable);
        });
        snapshot_.program().publicTypes.forEach([&](Symbol, const Entity& type) { addType(type, onlyCreatable); });
    } else if (library.inner) {
        library.inner->types.forEach([&](Symbol, const Entity& type) {
            if (isVisible(type, library.inner == &module_)) addType(type, onlyCreatable);
        });
    }
}

void NameList::addTypes(bool onlyCreatable) {
    const auto& program = snapshot_.program();
    for (const auto* name :
         {"Boolean", "Byte", "Currency", "Date", "Double", "Integer", "Long", "Object", "Single", "String", "Variant"})
        if (!onlyCreatable) add(name, NameKind::Keyword);
    module_.types.forEach([&](Symbol, const Entity& type) { addType(type, onlyCreatable); });
    program.publicTypes.forEach([&](Symbol, const Entity& type) { addType(type, onlyCreatable); });
    program.topNames.forEach([&](Symbol, const Entity& entity) {
        if (entity.kind != EntityKind::Module) add(entity);
        if (entity.kind == EntityKind::Module) addType(entity, onlyCreatable);
    });
    for (const auto* library : program.libraries)
        library->types.forEach([&](Symbol, const Entity& type) { addType(type, onlyCreatable); });
}

void NameList::addEvents() {
    module_.events.forEach([&](Symbol, const Entity& event) { add(event); });
}

std::vector<OfferedName> NameList::take() {
    std::vector<std::pair<std::string, OfferedName>> keyed;
    keyed.reserve(names_.size());
    for (auto& each : names_) keyed.emplace_back(basic::foldCase(each.name), std::move(each));
    const auto before = [](const auto& a, const auto& b) { return a.first < b.first; };
    std::stable_sort(keyed.begin(), keyed.end(), before);
    std::vector<OfferedName> names;
    for (std::size_t at = 0; at < keyed.size(); ++at)
        if (at == 0 || keyed[at].first != keyed[at - 1].first) names.push_back(std::move(keyed[at].second));
    return names;
}

} // namespace qltoolkit
