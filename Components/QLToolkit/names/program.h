#pragma once
// A project whose declarations are known: modules, libraries, and what their names mean.
#include "Components/Image/image.h"
#include "Components/QLToolkit/names/entity.h"
#include "Components/QLToolkit/source/diagnostic.h"
#include <array>
#include <deque>
#include <optional>

namespace qltoolkit {

/// A parsed module and what was found out about it.
struct SourceModule {
    SourceModule(const Module& module, std::optional<image::Control> header)
        : tree(module), form(std::move(header)), diagnostics(module.source) {
        defaultTypes.fill(TypeKind::Variant);
    }

    const Module& tree;
    std::optional<image::Control> form; ///< the block at the top of the file of a form
    Diagnostics diagnostics;
    Scope* scope = nullptr;
    bool isExplicit = false; ///< Option Explicit
    bool comparesText = false;
    std::uint32_t arrayBase = 0;
    std::array<TypeKind, 26> defaultTypes; ///< by first letter, from DefType

    /// What was declared, in source order, for the passes that follow.
    std::vector<std::pair<Entity*, const Variable*>> variables;
    std::vector<std::pair<Entity*, const Constant*>> constants;
    std::vector<std::pair<Entity*, const TypeDecl*>> records;
    std::vector<std::pair<Entity*, const Decl*>> callables; ///< procedures, Declares and events
};

/// Owns everything that names of the program mean.
class Program {
public:
    explicit Program(SymbolTable& table) : symbols(table) { newScope(ScopeKind::Library); }
    /// Begins with the libraries of another program, which must outlive this and is not changed. The table begins with
    /// the names of the other one's.
    Program(SymbolTable& table, Program& shared)
        : symbols(table), libraries(shared.libraries), shared_(&shared), sharedScopes_(shared.scopes_.size()) {}
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Scope& newScope(ScopeKind kind) {
        Scope& scope = scopes_.emplace_back();
        scope.kind = kind;
        scope.number = static_cast<std::uint32_t>(sharedScopes_ + scopes_.size() - 1);
        return scope;
    }
    Entity& newEntity(EntityKind kind, Symbol name) {
        auto* entity = arena.make<Entity>();
        entity->kind = kind;
        entity->name = name;
        return *entity;
    }
    ConstantState& newConstant() { return constants_.emplace_back(); }
    [[nodiscard]] const Scope& scope(std::uint32_t number) const {
        return number < sharedScopes_ ? shared_->scopes_[number] : scopes_[number - sharedScopes_];
    }
    [[nodiscard]] Scope& scope(std::uint32_t number) {
        return number < sharedScopes_ ? shared_->scopes_[number] : scopes_[number - sharedScopes_];
    }

    SymbolTable& symbols;
    Arena arena;
    std::deque<SourceModule> modules;
    std::vector<Scope*> libraries; ///< in the order in which names are looked up
    SymbolMap<Entity> topNames;    ///< the project, libraries and modules
    SymbolMap<Entity> publicNames; ///< of standard modules, and members of public enumerations
    SymbolMap<Entity> publicTypes;
    SymbolMap<Entity> ambiguous; ///< of publicNames: the second declaration
    /// A library or module is missing or damaged, so a name that is not found may be one of its names.
    bool isIncomplete = false;
    bool warnsOptionally = false; ///< of what is allowed but seldom meant
    bool warnsOfDevices = false;  ///< of what is not on devices
    bool warnsOfDeclares = false; ///< and of Declares themselves
    UseSink* uses = nullptr;      ///< called for each name, from one thread; null for none

private:
    Program* shared_ = nullptr;
    std::size_t sharedScopes_ = 0;
    std::deque<Scope> scopes_; // number 0 is any class
    std::deque<ConstantState> constants_;
};

} // namespace qltoolkit
