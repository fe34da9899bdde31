// Names without a qualifier.
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/lookup.h"

namespace qltoolkit {

namespace {

/// A name written with a type character must have been declared with this type.
bool contradicts(TypeSuffix suffix, const Type& type) {
    return suffix && type.value != ValueType::Unknown && typeOfSuffix(suffix) != type.value;
}

/// Several modules may declare the same function of a library: the first one counts.
bool isDeclare(const Entity& entity) { return entity.kind == EntityKind::Procedure && entity.get && !entity.get->body; }

} // namespace

std::string_view kindOf(const Operand& qualifier) {
    if (!qualifier.inner) return "project";
    switch (qualifier.inner->kind) {
    case ScopeKind::Library: return "library";
    case ScopeKind::Enum: return "Enum type";
    default: return "module";
    }
}

Operand Binder::name(const NameExpr& expr) {
    if (Entity* found = names_.find(expr.name)) return local(expr, *found);
    const auto found = findName(program_, *module_.scope, expr.name);
    if (!found.entity) {
        // Types have names of their own; only an enumeration or a library's module can be followed by a point.
        const Entity* type = memberFollows() ? findType(program_, *module_.scope, Symbol::None, expr.name) : nullptr;
        return type ? use(*type, expr, false) : undefined(expr);
    }
    if (const Entity* function = functionBehind(*found.entity, expr))
        return use(expr.suffix() == '$' && function->text ? *function->text : *function, expr, false);
    if (found.isAmbiguous && !(isDeclare(*found.entity) && isDeclare(*program_.ambiguous.find(expr.name))))
        reportName(Message::AmbiguousName, expr.pos);
    const bool isOfProject = found.entity->owner && found.entity->owner->source;
    if (isOfProject && found.entity->kind != EntityKind::Property && contradicts(expr.suffix(), found.entity->type))
        reportName(Message::TypeCharacterMismatch, expr.pos);
    if (expr.suffix() == '$' && found.entity->text) return use(*found.entity->text, expr, false);
    return use(*found.entity, expr, false);
}

// A property without parameters cannot take arguments, so Left(s, 1) is the function in a form, which has a property Left,
// and in a control that declares one. Left$ is the function even without arguments.
const Entity* Binder::functionBehind(const Entity& entity, const NameExpr& expr) const {
    if (entity.kind != EntityKind::Property || !entity.owner || !entity.get) return nullptr;
    const bool isOwn = entity.owner->source;
    if (isOwn && contradicts(expr.suffix(), entity.get->result)) return libraryFunction(expr.name);
    const bool takesNone = entity.get->parameters.empty() && !isIndexable(entity.get->result);
    if (!takesNone || !pendingIndex() || pendingIndex()->arguments.empty()) return nullptr;
    const Entity* found = isOwn ? nullptr : program_.publicNames.find(expr.name);
    return found ? found : libraryFunction(expr.name);
}

const Entity* Binder::libraryFunction(Symbol name) const {
    for (const auto* library : program_.libraries) {
        const Entity* found = library->names.find(name);
        if (found && found->kind == EntityKind::Procedure) return found;
    }
    return nullptr;
}

Operand Binder::local(const NameExpr& expr, Entity& entity) {
    entity.isUsed = true;
    used(expr.pos, entity);
    if (entity.kind == EntityKind::Constant) return {OperandKind::Constant, entity.type, expr.pos, &entity};
    if (contradicts(expr.suffix(), entity.type)) reportName(Message::TypeCharacterMismatch, expr.pos);
    // A function's name with arguments calls the function again; its variable has elements if it has no parameters.
    const Callable* own = entity.isResult ? function_->get : nullptr;
    const bool calls = own && ((pendingIndex() && (!own->parameters.empty() || !isIndexable(entity.type))) ||
                               (isWhole() && use_ == Use::Statement));
    if (calls) return entityOperand(*function_, expr, false);
    return {OperandKind::Variable, entity.type, expr.pos, &entity};
}

Operand Binder::undefined(const NameExpr& expr) {
    const bool isCall = pendingIndex() || (isWhole() && use_ == Use::Statement);
    if (program_.isIncomplete) {
        unknownNames_.emplace_back(expr.name, expr.pos);
        return implicit(expr, {ValueType::Unknown});
    }
    if (isCall) {
        reportName(Message::ProcedureNotDefined, expr.pos);
        return implicit(expr, {ValueType::Unknown});
    }
    if (module_.isExplicit) {
        reportName(Message::VariableNotDefined, expr.pos);
        return implicit(expr, {ValueType::Unknown});
    }
    warn(Message::ImplicitVariable, expr.pos);
    return implicit(expr, types_.typeOf(expr.name, expr.suffix(), nullptr));
}

/// The name is known from here on, so that it is reported once in each procedure.
Operand Binder::implicit(const NameExpr& expr, Type type) {
    Entity& entity = *declare(EntityKind::Variable, expr.name, expr.pos);
    entity.type = type;
    entity.isImplicit = true;
    return {OperandKind::Variable, type, expr.pos, &entity};
}

Operand Binder::use(const Entity& entity, const Expr& expr, bool throughObject) {
    used(expr.pos, entity);
    return entityOperand(entity, expr, throughObject);
}

Operand Binder::entityOperand(const Entity& entity, const Expr& expr, bool throughObject) {
    switch (entity.kind) {
    case EntityKind::Variable: {
        // A variable of a class is a property to others.
        const bool isField = entity.owner && entity.owner->kind == ScopeKind::Record;
        const auto kind = throughObject && !isField ? OperandKind::Property : OperandKind::Variable;
        return {kind, entity.type, expr.pos, &entity};
    }
    case EntityKind::Control: return {OperandKind::Property, entity.type, expr.pos, &entity};
    case EntityKind::Constant: return {OperandKind::Constant, entity.type, expr.pos, &entity};
    case EntityKind::Procedure: return call(entity, expr);
    case EntityKind::Property: return property(entity, expr);
    case EntityKind::Event: return late(expr.pos);
    case EntityKind::Module: return moduleOperand(entity, expr);
    case EntityKind::Record:
        reportName(Message::VariableNotDefined, expr.pos);
        return {OperandKind::Late, {ValueType::Unknown}, expr.pos};
    case EntityKind::Enum:
    case EntityKind::Library:
    case EntityKind::Project:
    case EntityKind::Label: break;
    }
    return {OperandKind::Qualifier, {ValueType::None}, expr.pos, &entity, entity.inner};
}

Operand Binder::moduleOperand(const Entity& entity, const Expr& expr) {
    const Scope& inner = *entity.inner;
    if (!inner.isClass()) return {OperandKind::Qualifier, {ValueType::None}, expr.pos, &entity, entity.inner};
    if (inner.predeclared) return {OperandKind::Variable, entity.type, expr.pos, &entity};
    // Designers are objects whose attributes may be missing.
    if (!inner.open) reportName(Message::VariableNotDefined, expr.pos);
    return {OperandKind::Late, {ValueType::Unknown}, expr.pos};
}

Operand Binder::addressOf(const UnaryExpr& expr) {
    const Expr& operand = *expr.operand;
    const Entity* found = nullptr;
    if (operand.kind == ExprKind::Name)
        found = findName(program_, *module_.scope, as<NameExpr>(operand).name).entity;
    else if (operand.kind == ExprKind::Member && as<MemberExpr>(operand).base)
        found = findName(program_, *module_.scope, as<MemberExpr>(operand).name).entity;
    if (found) used(operand.pos, *found);
    if (const auto* base = operand.kind == ExprKind::Member ? as<MemberExpr>(operand).base : nullptr;
        base && base->kind == ExprKind::Name)
        if (const Entity* qualifier = program_.topNames.find(as<NameExpr>(*base).name)) used(base->pos, *qualifier);
    const bool isProcedure = found && found->kind == EntityKind::Procedure && found->owner &&
                             found->owner->kind == ScopeKind::StandardModule;
    if (!isProcedure && !(program_.isIncomplete && !found)) report(Message::InvalidAddressOf, expr.pos);
    return {OperandKind::Value, {ValueType::Long}, expr.pos};
}

} // namespace qltoolkit
