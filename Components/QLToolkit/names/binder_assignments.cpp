// Let, Set and what else changes a variable.
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/record_size.h"
#include "Components/QLToolkit/types/coercions.h"

namespace qltoolkit {

void Binder::let(const AssignStmt& stmt) {
    const Operand value = expression(*stmt.value);
    const Operand target = expression(*stmt.target, Use::Let);
    if (mayAssign(target)) assign(target, value, stmt.value->pos);
}

/// Reports a target that can never be assigned to.
bool Binder::mayAssign(const Operand& target) {
    switch (target.kind) {
    case OperandKind::Variable:
    case OperandKind::Property:
    case OperandKind::Late: return true;
    case OperandKind::Constant: reportName(Message::AssignToConstant, target.pos); return false;
    case OperandKind::Qualifier: refuseQualifier(target); return false;
    case OperandKind::Value: break;
    }
    if (target.type.value == ValueType::None || target.type.value == ValueType::Unknown) return false;
    // An object that a function returns may have a default property.
    if (target.entity && isIndexable(target.type) && !target.type.isArray) return true;
    report(target.entity ? Message::CallResultNotAssignable : Message::VariableRequired, target.pos);
    return false;
}

void Binder::assign(const Operand& target, const Operand& value, Pos pos) {
    if (target.type.value == ValueType::Unknown || value.type.value == ValueType::Unknown) return;
    if (target.type.isArray) return assignArray(target, value, pos);
    if (target.type.value == ValueType::Object) {
        const bool isNothing = value.type.value == ValueType::Nothing;
        const bool isLet = target.kind == OperandKind::Property && target.entity && target.entity->let;
        if (isLet && (isNothing || value.type.value == ValueType::Object))
            return; // a Property Let that takes an object
        // Without Set the value goes to the default property of the object.
        if (isNothing) return report(Message::InvalidUseOfObject, pos);
        if (target.type.id == 0) return;
        const Scope& scope = program_.scope(target.type.id);
        if (!scope.findDefault() && !scope.open) report(Message::InvalidUseOfProperty, target.pos);
        return;
    }
    if (value.type.value == ValueType::Nothing) return report(Message::InvalidUseOfObject, pos);
    if (target.kind == OperandKind::Late && value.type.value == ValueType::Record) return;
    if (!fitsTo(value, target.type)) report(Message::TypeMismatch, pos);
}

void Binder::assignArray(const Operand& target, const Operand& value, Pos pos) {
    if (target.entity && target.entity->isStaticArray) return reportName(Message::AssignToArray, target.pos);
    if (isControlArray(target)) return reportName(Message::AssignToArray, target.pos);
    const bool isSame = value.type.isArray && value.type.value == target.type.value &&
                        (value.type.value != ValueType::Record || value.type.id == target.type.id);
    // Bytes take a text, also that of a default property; a Variant may hold an array.
    const bool isBytes = target.type.value == ValueType::Byte && !value.type.isArray &&
                         (value.type.value == ValueType::String || value.type.value == ValueType::FixedString ||
                          value.type.value == ValueType::Object);
    if (!isSame && !isBytes && (value.type.isArray || value.type.value != ValueType::Variant))
        report(Message::TypeMismatch, pos);
}

void Binder::set(const AssignStmt& stmt) {
    const Operand value = expression(*stmt.value);
    const Operand target = expression(*stmt.target, Use::Set);
    if (mayAssign(target)) setObject(target, value, stmt.value->pos);
}

void Binder::setObject(const Operand& target, const Operand& value, Pos pos) {
    const auto isObject = [](const Type& type, bool isTarget) {
        if (type.isArray) return false;
        return type.value == ValueType::Object || type.value == ValueType::Variant ||
               type.value == ValueType::Unknown || (!isTarget && type.value == ValueType::Nothing);
    };
    if (!isObject(target.type, true)) return report(Message::ObjectRequired, target.pos);
    if (isControlArray(value) && target.type.id == 0) return;
    // Whether the object has the class is checked when the program runs.
    if (!isObject(value.type, false)) report(Message::ObjectRequired, pos);
}

/// LSet and RSet. Between two Types LSet copies bytes, which must mean nothing but numbers and characters.
void Binder::align(const AssignStmt& stmt) {
    const Type value = expression(*stmt.value).type;
    const Type target = input(stmt.target).type;
    const auto isRecord = [](const Type& type) { return type.value == ValueType::Record && !type.isArray; };
    if (!isRecord(target) && !isRecord(value)) return;
    if (target.value == ValueType::Unknown || value.value == ValueType::Unknown) return;
    const bool areRecords = isRecord(target) && isRecord(value) && stmt.kind == StmtKind::LSet;
    const bool fits = areRecords && (target.id == value.id || (isPlain(program_, program_.scope(target.id)) &&
                                                               isPlain(program_, program_.scope(value.id))));
    if (!fits) report(Message::TypeMismatch, stmt.value->pos);
}

/// A variable that a statement fills: Get #, Input #, Line Input, LSet, Mid.
Operand Binder::input(const Expr* target) {
    if (!target) return {};
    const Operand operand = expression(*target, Use::Let);
    if (operand.kind == OperandKind::Value && operand.type.value != ValueType::Unknown)
        report(Message::VariableRequired, operand.pos);
    else
        (void)mayAssign(operand);
    return operand;
}

} // namespace qltoolkit
