#include "Components/QLToolkit/names/declare.h"
#include "Components/QLToolkit/parser/module_name.h"

namespace qltoolkit {

namespace {

bool isPublic(const Decl& decl, bool byDefault) {
    return decl.visibility == Visibility::Default ? byDefault : decl.visibility != Visibility::Private;
}

class ModuleDeclarations {
public:
    ModuleDeclarations(Program& program, SourceModule& module)
        : program_(program), module_(module), scope_(*module.scope) {}

    void declare(const Decl& decl) {
        switch (decl.kind) {
        case DeclKind::OptionExplicit: module_.isExplicit = true; break;
        case DeclKind::OptionCompareText: module_.comparesText = true; break;
        case DeclKind::OptionBase: module_.arrayBase = as<OptionBaseDecl>(decl).base; break;
        case DeclKind::DefType: defaultTypes(as<DefTypeDecl>(decl)); break;
        case DeclKind::Variables: variables(as<VariablesDecl>(decl)); break;
        case DeclKind::Constants: constants(as<ConstantsDecl>(decl)); break;
        case DeclKind::Type: record(as<TypeDecl>(decl)); break;
        case DeclKind::Enum: enumeration(as<EnumDecl>(decl)); break;
        case DeclKind::Declare: declaration(as<DeclareDecl>(decl)); break;
        case DeclKind::Event: event(as<EventDecl>(decl)); break;
        case DeclKind::Procedure: procedure(as<ProcedureDecl>(decl)); break;
        default: break;
        }
    }

private:
    void defaultTypes(const DefTypeDecl& decl) {
        for (unsigned letter = 0; letter < module_.defaultTypes.size(); ++letter)
            if (decl.letters >> letter & 1) module_.defaultTypes[letter] = decl.type;
    }

    Entity& entity(EntityKind kind, Symbol name, Pos pos, bool isPublic) {
        Entity& made = program_.newEntity(kind, name);
        made.pos = pos;
        made.isPublic = isPublic;
        made.owner = &scope_;
        used(pos, made);
        return made;
    }

    void used(Pos pos, const Entity& entity) {
        if (program_.uses) program_.uses->used(module_, pos, entity);
    }

    void enter(SymbolMap<Entity>& map, Entity& made) {
        if (!map.add(made.name, &made)) report(made.pos, made.name);
    }

    void report(Pos pos, Symbol name) {
        module_.diagnostics.report(Message::AmbiguousName, pos, program_.symbols.spelling(name));
    }

    void variables(const VariablesDecl& decl) {
        for (const auto& variable : decl.variables) {
            Entity& made = entity(EntityKind::Variable, variable.name, variable.pos, isPublic(decl, false));
            made.withEvents = variable.withEvents;
            enter(scope_.names, made);
            module_.variables.emplace_back(&made, &variable);
        }
    }

    void constants(const ConstantsDecl& decl) {
        for (const auto& constant : decl.constants) {
            Entity& made = entity(EntityKind::Constant, constant.name, constant.pos, isPublic(decl, false));
            made.constant = &program_.newConstant();
            made.constant->expression = constant.value;
            enter(scope_.names, made);
            module_.constants.emplace_back(&made, &constant);
        }
    }

    void record(const TypeDecl& decl) {
        Entity& made = entity(EntityKind::Record, decl.name, decl.namePos, isPublic(decl, true));
        Scope& fields = program_.newScope(ScopeKind::Record);
        fields.name = decl.name;
        fields.source = &module_;
        fields.isPrivate = !made.isPublic;
        made.inner = &fields;
        made.type = {ValueType::Record, false, false, fields.number};
        enter(scope_.types, made);
        module_.records.emplace_back(&made, &decl);
    }

    void enumeration(const EnumDecl& decl) {
        Entity& made = entity(EntityKind::Enum, decl.name, decl.namePos, isPublic(decl, true));
        Scope& members = program_.newScope(ScopeKind::Enum);
        members.name = decl.name;
        members.isPrivate = !made.isPublic;
        made.inner = &members;
        made.type = {ValueType::Long, false, true, members.number};
        enter(scope_.types, made);
        const Entity* previous = nullptr;
        for (const auto& member : decl.members) previous = &enumMember(made, members, member, previous);
    }

    const Entity& enumMember(const Entity& enumeration, Scope& members, const Constant& member,
                             const Entity* previous) {
        Entity& made = entity(EntityKind::Constant, member.name, member.pos, enumeration.isPublic);
        made.type = enumeration.type;
        made.constant = &program_.newConstant();
        made.constant->expression = member.value;
        made.constant->previous = previous;
        made.constant->declared = {ValueType::Long};
        members.names.add(member.name, &made);
        // Enumerations of one module may share members, which then need the name of their enumeration.
        if (!scope_.names.add(member.name, &made) && !isEnumMember(*scope_.names.find(member.name)))
            report(member.pos, member.name);
        module_.constants.emplace_back(&made, &member);
        return made;
    }

    static bool isEnumMember(const Entity& entity) { return entity.kind == EntityKind::Constant && entity.type.isEnum; }

    void declaration(const DeclareDecl& decl) {
        Entity& made = entity(EntityKind::Procedure, decl.signature.name, decl.signature.namePos, isPublic(decl, true));
        made.onDevices = false;
        enter(scope_.names, made);
        module_.callables.emplace_back(&made, &decl);
    }

    void event(const EventDecl& decl) {
        Entity& made = entity(EntityKind::Event, decl.name, decl.namePos, true);
        enter(scope_.events, made);
        module_.callables.emplace_back(&made, &decl);
    }

    void procedure(const ProcedureDecl& decl) {
        const auto& signature = decl.signature;
        if (signature.kind >= ProcedureKind::PropertyGet) return property(decl);
        Entity& made = entity(EntityKind::Procedure, signature.name, signature.namePos, isPublic(decl, true));
        enter(scope_.names, made);
        module_.callables.emplace_back(&made, &decl);
    }

    // Property Get, Let and Set of one name are one property. The passes that follow fill in its procedures; here each
    // gets a mark so that a second Get is noticed.
    void property(const ProcedureDecl& decl) {
        const auto& signature = decl.signature;
        Entity* made = scope_.names.find(signature.name);
        if (!made) {
            made = &entity(EntityKind::Property, signature.name, signature.namePos, false);
            scope_.names.add(signature.name, made);
        }
        if (made->kind != EntityKind::Property || partOf(*made, signature.kind))
            return report(signature.namePos, signature.name);
        if (made->pos != signature.namePos) used(signature.namePos, *made);
        partOf(*made, signature.kind) = program_.arena.make<Callable>();
        made->isPublic |= isPublic(decl, true);
        module_.callables.emplace_back(made, &decl);
    }

    static const Callable*& partOf(Entity& property, ProcedureKind kind) {
        if (kind == ProcedureKind::PropertyGet) return property.get;
        return kind == ProcedureKind::PropertyLet ? property.let : property.set;
    }

    Program& program_;
    SourceModule& module_;
    Scope& scope_;
};

ScopeKind scopeKindOf(FileKind kind) {
    return kind == FileKind::Module ? ScopeKind::StandardModule : ScopeKind::ClassModule;
}

/// Controls, pages, designers and documents have members that come from outside of the project.
bool hasOutsideMembers(FileKind kind) {
    return kind != FileKind::Module && kind != FileKind::Class && kind != FileKind::Form;
}

void publish(Program& program, Entity& entity) {
    if (!entity.isPublic) return;
    if (!program.publicNames.add(entity.name, &entity)) program.ambiguous.add(entity.name, &entity);
}

void publishNames(Program& program, const Scope& scope) {
    scope.types.forEach([&](Symbol name, Entity& type) {
        if (!type.isPublic) return;
        program.publicTypes.add(name, &type);
        if (type.kind != EntityKind::Enum || scope.kind == ScopeKind::StandardModule) return;
        type.inner->names.forEach([&](Symbol, Entity& member) { publish(program, member); });
    });
    if (scope.kind != ScopeKind::StandardModule) return;
    scope.names.forEach([&](Symbol, Entity& entity) { publish(program, entity); });
}

/// The name of a module is declared by an attribute.
void reportName(Program& program, const SourceModule& module, Entity& entity) {
    const auto* literal = program.uses ? moduleNameLiteral(module.tree, program.symbols) : nullptr;
    if (!literal) return;
    entity.pos = literal->pos + 1;
    program.uses->used(module, entity.pos, entity);
}

} // namespace

void declareModule(Program& program, SourceModule& module, Symbol name) {
    Scope& scope = program.newScope(scopeKindOf(module.tree.source.kind()));
    scope.name = name;
    scope.source = &module;
    scope.creatable = scope.isClass();
    scope.predeclared = module.tree.source.kind() == FileKind::Form;
    scope.open = hasOutsideMembers(module.tree.source.kind());
    module.scope = &scope;
    ModuleDeclarations declarations{program, module};
    for (const auto* decl = module.tree.declarations; decl; decl = decl->next) declarations.declare(*decl);
}

void declareProject(Program& program, std::string_view projectName) {
    if (!projectName.empty()) {
        const Symbol symbol = program.symbols.intern(projectName);
        program.topNames.add(symbol, &program.newEntity(EntityKind::Project, symbol));
    }
    for (auto& module : program.modules) {
        Entity& entity = program.newEntity(EntityKind::Module, module.scope->name);
        entity.inner = module.scope;
        entity.isPublic = true;
        if (module.scope->isClass()) entity.type = {ValueType::Object, false, false, module.scope->number};
        program.topNames.add(entity.name, &entity);
        reportName(program, module, entity);
        publishNames(program, *module.scope);
    }
    for (auto* library : program.libraries) {
        Entity& entity = program.newEntity(EntityKind::Library, library->name);
        entity.inner = library;
        entity.onDevices = !library->instead;
        entity.instead = library->instead;
        program.topNames.add(entity.name, &entity);
    }
}

} // namespace qltoolkit
