#pragma once
// Collects the names of scopes.
#include "Components/QLToolkit/insight/completion.h"

namespace qltoolkit {

class NameList {
public:
    /// `module` is where the names are used.
    NameList(const Snapshot& snapshot, const Scope& module) : snapshot_(snapshot), module_(module) {}

    void add(std::string name, NameKind kind);
    void add(const Entity& entity, const SourceText* local = nullptr);

    /// The members of an object, or what can follow the name of a module, library, project or enumeration.
    void addMembersOf(const MemberBase& base);
    void addControlsOf(const MemberBase& base);
    void addEnum(const Type& type);
    /// What a module can name without a qualifier.
    void addGlobalNames();
    void addTypes(bool onlyCreatable);
    void addTypesOf(const Entity& library, bool onlyCreatable);
    void addEvents();

    /// Sorted, each name once.
    [[nodiscard]] std::vector<OfferedName> take();

private:
    void addNames(const Scope& scope, bool isOwn);
    void addTypesIn(const SymbolMap<Entity>& types, bool isOwn);
    void addObject(const Scope& scope);
    void addType(const Entity& entity, bool onlyCreatable);
    void addLibrary(const Scope& library);
    [[nodiscard]] bool isHidden(const Entity& entity) const;

    const Snapshot& snapshot_;
    const Scope& module_;
    std::vector<OfferedName> names_;
};

} // namespace qltoolkit
