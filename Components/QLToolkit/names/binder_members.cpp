// Members: what follows a point or an exclamation mark.
#include "Basic/case_folding.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/lookup.h"

namespace qltoolkit {

namespace {

/// Members of control arrays themselves.
bool isArrayMember(std::string_view name) {
    for (const auto* each : {"Count", "Item", "LBound", "UBound"})
        if (basic::equalNoCase(each, name)) return true;
    return false;
}

} // namespace

void Binder::usedMember(const Operand& base, const MemberExpr& expr) {
    if (!program_.uses) return;
    program_.uses->member({base.type, base.entity, base.inner, base.kind == OperandKind::Qualifier}, expr.name);
}

Operand Binder::member(const Operand& base, const MemberExpr& expr) {
    usedMember(base, expr);
    if (base.kind == OperandKind::Qualifier) return memberOfQualifier(base, expr);
    if (base.type.isArray) {
        if (isControlArray(base) && isArrayMember(program_.symbols.spelling(expr.name))) return late(expr.pos);
        if (base.type.value != ValueType::Unknown) report(Message::InvalidQualifier, base.pos);
        return late(expr.pos, ValueType::Unknown);
    }
    switch (base.type.value) {
    case ValueType::Object:
        if (base.type.id == 0) return late(expr.pos);
        [[fallthrough]];
    case ValueType::Record: return memberOfObject(base, expr);
    case ValueType::Variant: return late(expr.pos);
    case ValueType::Unknown: return late(expr.pos, ValueType::Unknown);
    default: report(Message::InvalidQualifier, base.pos); return late(expr.pos, ValueType::Unknown);
    }
}

Operand Binder::memberOfQualifier(const Operand& base, const MemberExpr& expr) {
    if (!base.inner) { // the project
        const auto found = findName(program_, *module_.scope, expr.name);
        if (found.entity) return use(*found.entity, expr, false);
        return notFound(expr);
    }
    const Scope& inner = *base.inner;
    Entity* found = inner.find(expr.name);
    const bool isOwn = &inner == module_.scope || inner.kind == ScopeKind::Enum; // who can name it can name its members
    if (found && (found->isPublic || isOwn)) {
        if (expr.suffix() == '$' && found->text) found = const_cast<Entity*>(found->text);
        return use(*found, expr, false);
    }
    if (const Entity* type = inner.types.find(expr.name); type && (type->isPublic || isOwn))
        return use(*type, expr, false);
    if (inner.open) return late(expr.pos, ValueType::Unknown);
    return notFound(expr);
}

Operand Binder::memberOfObject(const Operand& base, const MemberExpr& expr) {
    const Scope& scope = program_.scope(base.type.id);
    const Entity* found = scope.find(expr.name);
    if (found && found->isPublic) {
        if (scope.kind == ScopeKind::Record) {
            used(expr.pos, *found);
            return {base.kind == OperandKind::Property ? OperandKind::Property : OperandKind::Variable, found->type,
                    expr.pos, found};
        }
        return use(*found, expr, true);
    }
    if (scope.open) return late(expr.pos, ValueType::Unknown);
    return notFound(expr);
}

Operand Binder::notFound(const MemberExpr& expr) {
    reportName(Message::MemberNotFound, expr.pos);
    return late(expr.pos, ValueType::Unknown);
}

// object!name is object.DefaultMember("name").
Operand Binder::bang(const Operand& base, const MemberExpr& expr) {
    usedMember(base, expr);
    if (base.kind == OperandKind::Qualifier) {
        report(Message::InvalidQualifier, base.pos);
        return late(expr.pos, ValueType::Unknown);
    }
    if (base.type.value == ValueType::Object && base.type.id != 0) {
        const Scope& scope = program_.scope(base.type.id);
        const Entity* member = scope.findDefault();
        if (member && member->get && member->get->result.value != ValueType::None)
            return {OperandKind::Late, member->get->result, expr.pos};
    }
    const bool mayBeObject = base.type.value == ValueType::Object || base.type.value == ValueType::Variant ||
                             base.type.value == ValueType::Unknown;
    if (!mayBeObject || base.type.isArray) report(Message::InvalidQualifier, base.pos);
    return late(expr.pos, base.type.value == ValueType::Unknown ? ValueType::Unknown : ValueType::Variant);
}

} // namespace qltoolkit
