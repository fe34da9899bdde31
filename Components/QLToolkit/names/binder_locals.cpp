// Declarations within procedures.
#include "Components/QLToolkit/names/array_bounds.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/lookup.h"

namespace qltoolkit {

void Binder::local(const Variable& variable, bool isStatic) {
    Entity* made = declare(EntityKind::Variable, variable.name, variable.pos);
    if (!made) {
        Entity* other = names_.find(variable.name);
        // ReDim or a use before the declaration made it known.
        if (!other->isImplicit) return reportName(Message::DuplicateDeclaration, variable.pos);
        if (other->type.value != ValueType::Unknown) reportName(Message::DuplicateDeclaration, variable.pos);
        made = other;
        used(variable.pos, *other);
    }
    made->type = types_.typeOf(variable.name, variable.suffix, variable.type, &names_);
    made->type.isArray = variable.isArray;
    made->declaration = &variable;
    made->isStatic = isStatic || procedure_->isStatic;
    made->isNew = variable.type && variable.type->isNew;
    if (variable.isArray && !variable.bounds.empty()) declareBounds(*made, variable, constants_, module_, &names_);
}

// Dim a, b As Integer: a is a Variant.
void Binder::warnOfUntyped(const Span<Variable>& variables) {
    if (variables.size() < 2 || !variables[variables.size() - 1].type) return;
    for (const auto& each : variables)
        if (!each.type && !each.suffix) warn(Message::OnlyLastTyped, each.pos);
}

void Binder::localConstant(const Constant& constant) {
    Entity* made = declare(EntityKind::Constant, constant.name, constant.pos);
    if (!made) return reportName(Message::DuplicateDeclaration, constant.pos);
    made->constant = &names_.newConstant();
    made->constant->expression = constant.value;
    if (constant.type || constant.suffix)
        made->constant->declared = types_.typeOf(constant.name, constant.suffix, constant.type);
    constants_.evaluate(*made, module_, &names_);
    made->type = made->constant->declared;
    if (made->type.value == ValueType::Unknown && !made->constant->failed)
        made->type = {qltoolkit::typeOf(made->constant->value)};
}

void Binder::reDim(const ReDimItem& item) {
    if (item.bounds.size() > kMostDimensions) report(Message::TooManyDimensions, item.target->pos);
    for (const auto& bound : item.bounds) {
        value(bound.lower, ValueType::Long);
        value(bound.upper, ValueType::Long);
    }
    const Operand target = reDimTarget(item);
    if (target.type.value == ValueType::Unknown) return;
    if (target.entity && target.entity->isStaticArray)
        reportName(Message::AlreadyDimensioned, target.pos);
    else if (!target.type.isArray && target.type.value != ValueType::Variant)
        reportName(Message::ExpectedArray, target.pos);
}

/// ReDim of a name that the project does not have declares an array in the procedure, also where variables must be
/// declared and where a library has the name.
Operand Binder::reDimTarget(const ReDimItem& item) {
    const Type type = item.type ? types_.typeOf(*item.type, &names_) : Type{ValueType::Unknown};
    if (item.target->kind == ExprKind::Name) {
        const auto& name = as<NameExpr>(*item.target);
        const Entity* found = findName(program_, *module_.scope, name.name).entity;
        const bool isOfProject = found && found->owner && found->owner->source;
        if (!names_.find(name.name) && !isOfProject) {
            Entity& made = *declare(EntityKind::Variable, name.name, name.pos);
            made.type = item.type ? type : types_.typeOf(name.name, name.suffix(), nullptr);
            made.type.isArray = true;
            made.isUsed = true;
            return {OperandKind::Variable, made.type, name.pos, &made};
        }
    }
    return expression(*item.target, Use::Argument);
}

} // namespace qltoolkit
