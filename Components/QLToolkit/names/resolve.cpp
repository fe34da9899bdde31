#include "Components/QLToolkit/names/resolve.h"
#include "Basic/case_folding.h"
#include "Components/Language/foreign.h"
#include "Components/QLToolkit/names/array_bounds.h"
#include "Components/QLToolkit/names/declared_types.h"
#include "Components/QLToolkit/names/lacks.h"
#include "Components/QLToolkit/names/lookup.h"

namespace qltoolkit {

namespace {

/// Member ids with a meaning of their own.
constexpr std::int64_t kDefaultMember = 0;
constexpr std::int64_t kEnumerator = -4;

class ModuleResolution {
public:
    ModuleResolution(Program& program, SourceModule& module, Constants& constants)
        : program_(program), module_(module), constants_(constants), types_(program, module, constants) {}

    void resolveConstantTypes() {
        for (const auto& [entity, decl] : module_.constants)
            if (!entity->type.isEnum && (decl->type || decl->suffix))
                entity->constant->declared = types_.typeOf(decl->name, decl->suffix, decl->type);
    }

    void resolve() {
        for (const auto& [entity, decl] : module_.constants) constant(*entity);
        for (const auto& [entity, decl] : module_.records) record(*entity, *decl);
        for (const auto& [entity, decl] : module_.variables) variable(*entity, *decl);
        for (const auto& [entity, decl] : module_.callables) callable(*entity, *decl);
        for (const auto* decl = module_.tree.declarations; decl; decl = decl->next) {
            if (decl->kind == DeclKind::Attribute) attribute(as<AttributeDecl>(*decl));
            if (decl->kind == DeclKind::Implements) implements(as<ImplementsDecl>(*decl));
        }
    }

    void resolve(Entity& entity, const ProcedureDecl& decl) { signature(entity, decl.signature, &decl); }

private:
    void used(Pos pos, const Entity& entity) {
        if (program_.uses) program_.uses->used(module_, pos, entity);
    }

    /// The binder reports the parameters of procedures.
    void declared(const Callable& callable) {
        if (!program_.uses) return;
        for (const auto& parameter : callable.parameters)
            program_.uses->usedParameter(module_, parameter.pos, callable, parameter);
    }

    void constant(Entity& entity) {
        constants_.evaluate(entity, module_);
        if (entity.type.isEnum) return;
        entity.type = entity.constant->declared;
        if (entity.type.value == ValueType::Unknown && !entity.constant->failed)
            entity.type = {typeOf(entity.constant->value)};
    }

    void record(Entity& entity, const TypeDecl& decl) {
        Scope& fields = program_.scope(entity.type.id);
        for (const auto& member : decl.members) {
            Entity& field = program_.newEntity(EntityKind::Variable, member.name);
            field.pos = member.pos;
            field.isPublic = true;
            field.owner = &fields;
            used(member.pos, field);
            variable(field, member);
            if (!fields.names.add(member.name, &field))
                module_.diagnostics.report(Message::DuplicateDeclaration, member.pos,
                                           nameAt(module_.tree.source, member.pos));
        }
    }

    void variable(Entity& entity, const Variable& decl) {
        entity.type = types_.typeOf(decl.name, decl.suffix, decl.type);
        entity.type.isArray = decl.isArray;
        entity.declaration = &decl;
        entity.isNew = decl.type && decl.type->isNew;
        if (decl.isArray && !decl.bounds.empty()) declareBounds(entity, decl, constants_, module_);
    }

    void callable(Entity& entity, const Decl& decl) {
        switch (decl.kind) {
        case DeclKind::Declare:
            lookUp(entity, as<DeclareDecl>(decl));
            return signature(entity, as<DeclareDecl>(decl).signature, nullptr);
        case DeclKind::Event: {
            auto* made = program_.arena.make<Callable>();
            made->source = &module_;
            made->parameters = parameters(as<EventDecl>(decl).parameters);
            declared(*made);
            entity.get = made;
            return;
        }
        default: return signature(entity, as<ProcedureDecl>(decl).signature, &as<ProcedureDecl>(decl));
        }
    }

    /// Devices have no libraries of their desktop system, but answer some of their functions.
    void lookUp(Entity& entity, const DeclareDecl& decl) const {
        const auto& source = module_.tree.source;
        const auto function =
            decl.alias ? stringValue(source, *decl.alias) : std::string(program_.symbols.spelling(decl.signature.name));
        const auto* found = language::findDeclared(stringValue(source, *decl.library), function);
        entity.onDevices = found && found->onDevices;
        entity.instead = found ? &found->instead : nullptr;
        entity.answered = entity.onDevices ? found : nullptr;
        if (program_.warnsOfDeclares && !entity.onDevices)
            reportLack(program_, module_.diagnostics, Lack::Declare, entity, decl.signature.namePos,
                       nameAt(source, decl.signature.namePos));
    }

    void signature(Entity& entity, const Signature& decl, const ProcedureDecl* body) {
        auto* made = program_.arena.make<Callable>();
        made->body = body;
        made->source = &module_;
        made->parameters = parameters(decl.parameters, body == nullptr);
        if (!body) declared(*made);
        const bool hasResult = decl.kind == ProcedureKind::Function || decl.kind == ProcedureKind::PropertyGet;
        if (hasResult) made->result = types_.typeOf(decl.name, decl.suffix, decl.result);
        switch (decl.kind) {
        case ProcedureKind::PropertyLet: entity.let = assigning(*made, decl); break;
        case ProcedureKind::PropertySet: entity.set = assigning(*made, decl); break;
        default: entity.get = made; entity.type = made->result;
        }
        if (entity.kind == EntityKind::Property && !entity.get) entity.type = made->result;
    }

    // The last parameter of Property Let and Set is the value.
    const Callable* assigning(Callable& made, const Signature& decl) {
        const auto count = made.parameters.size();
        if (count == 0) {
            module_.diagnostics.report(Message::PropertyInconsistent, decl.namePos);
            return &made;
        }
        made.result = made.parameters[count - 1].type;
        made.parameters = {made.parameters.begin(), count - 1};
        return &made;
    }

    Span<ParameterInfo> parameters(const Span<Parameter>& list, bool isOfDeclare = false) {
        std::vector<ParameterInfo> made;
        for (const auto& p : list) {
            ParameterInfo info;
            info.name = p.name;
            info.pos = p.pos;
            if (p.type || !p.paramArray) info.type = types_.typeOf(p.name, p.suffix, p.type);
            info.type.isArray = p.isArray && !p.paramArray;
            info.byVal = p.passing == Passing::ByVal;
            info.optional = p.optional;
            info.paramArray = p.paramArray;
            info.isOfDeclare = isOfDeclare;
            info.any = p.type && p.type->kind == TypeKind::Any;
            info.defaultValue = p.defaultValue;
            if (p.defaultValue) (void)constants_.valueOf(*p.defaultValue, module_);
            made.push_back(info);
        }
        return program_.arena.copy(made.data(), made.size());
    }

    void attribute(const AttributeDecl& decl) {
        if (!decl.path.empty())
            if (const Entity* member = module_.scope->names.find(decl.path[0])) used(decl.pathPos, *member);
        if (decl.values.empty() || !decl.values[0]) return;
        const auto name = program_.symbols.spelling(decl.name);
        if (decl.path.empty() && basic::equalNoCase(name, "VB_PredeclaredId"))
            module_.scope->predeclared |= decl.values[0]->kind == ExprKind::Boolean && decl.values[0]->detail == 1;
        if (decl.path.size() == 1 && basic::equalNoCase(name, "VB_UserMemId")) memberId(decl);
    }

    void memberId(const AttributeDecl& decl) {
        Entity* member = module_.scope->names.find(decl.path[0]);
        const auto id = wholeNumber(*decl.values[0]);
        if (!member || !id) return;
        if (*id == kDefaultMember) module_.scope->defaultMember = member;
        if (*id == kEnumerator) module_.scope->enumerator = member;
    }

    static std::optional<std::int64_t> wholeNumber(const Expr& expr) {
        if (expr.kind == ExprKind::Integer || expr.kind == ExprKind::Long) return as<IntegerExpr>(expr).value;
        if (expr.kind != ExprKind::Unary || expr.op() != Operator::Negate) return std::nullopt;
        const auto operand = wholeNumber(*as<UnaryExpr>(expr).operand);
        return operand ? std::optional(-*operand) : std::nullopt;
    }

    void implements(const ImplementsDecl& decl) {
        const Entity* found = findType(program_, *module_.scope, decl.type->library, decl.type->name);
        if (found) used(decl.type->namePos, *found);
        if (found && found->inner && found->inner->isClass() && module_.scope->isClass() &&
            found->inner != module_.scope)
            module_.scope->interfaces.push_back(found->inner);
        else if (found || !program_.isIncomplete)
            module_.diagnostics.report(found ? Message::BadInterface : Message::TypeNotDefined, decl.type->pos,
                                       nameAt(module_.tree.source, decl.type->pos));
    }

    Program& program_;
    SourceModule& module_;
    Constants& constants_;
    DeclaredTypes types_;
};

} // namespace

void resolveConstantTypes(Program& program, SourceModule& module, Constants& constants) {
    ModuleResolution{program, module, constants}.resolveConstantTypes();
}

void resolveProcedure(Program& program, SourceModule& module, Constants& constants, Entity& entity,
                      const ProcedureDecl& decl) {
    ModuleResolution{program, module, constants}.resolve(entity, decl);
}

void resolveModule(Program& program, SourceModule& module, Constants& constants) {
    ModuleResolution{program, module, constants}.resolve();
}

} // namespace qltoolkit
