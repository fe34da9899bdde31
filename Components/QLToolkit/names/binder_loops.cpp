// Loops.
#include "Components/QLToolkit/names/binder.h"

namespace qltoolkit {

namespace {

bool isCounter(const Type& type) {
    if (type.isArray) return false;
    switch (type.value) {
    case ValueType::Byte:
    case ValueType::Integer:
    case ValueType::Long:
    case ValueType::Single:
    case ValueType::Double:
    case ValueType::Currency:
    case ValueType::Date:
    case ValueType::Boolean:
    case ValueType::Variant:
    case ValueType::Unknown: return true;
    default: return false;
    }
}

} // namespace

void Binder::forLoop(const ForStmt& loop) {
    const Operand variable = operandOf(loop.variable, Use::Let);
    for (const auto* part : {loop.from, loop.to, loop.step})
        value(part, variable.type.isArray ? ValueType::Unknown : variable.type.value);
    if (mayAssign(variable) && !isCounter(variable.type)) report(Message::TypeMismatch, variable.pos);
    loopBody(variable, loop.body);
    used(loop.next, variable);
}

/// The variable after Next, which the parser has compared with the loop's.
void Binder::used(const Expr* next, const Operand& variable) {
    if (next && next->kind == ExprKind::Name && variable.entity) used(next->pos, *variable.entity);
}

void Binder::loopBody(const Operand& variable, const Block& body) {
    if (variable.entity &&
        std::find(loopVariables_.begin(), loopVariables_.end(), variable.entity) != loopVariables_.end())
        reportName(Message::ForVariableInUse, variable.pos);
    loopVariables_.push_back(variable.entity);
    ++forLoops_;
    block(body);
    --forLoops_;
    loopVariables_.pop_back();
}

void Binder::forEach(const ForEachStmt& loop) {
    const Operand group = operandOf(loop.in, Use::Argument);
    readValue(group);
    const Operand variable = operandOf(loop.variable, Use::Let);
    if (mayAssign(variable)) forEachVariable(variable, group);
    loopBody(variable, loop.body);
    used(loop.next, variable);
}

void Binder::forEachVariable(const Operand& variable, const Operand& group) {
    const auto value = variable.type.value;
    if (value == ValueType::Unknown || group.type.value == ValueType::Unknown) return;
    const bool isVariant = value == ValueType::Variant && !variable.type.isArray;
    if (group.type.isArray && !isControlArray(group)) {
        if (group.type.value == ValueType::Record || group.type.value == ValueType::FixedString)
            return report(Message::ForEachRecords, group.pos);
        if (!isVariant) report(Message::ForEachVariable, variable.pos);
        return;
    }
    if (!isVariant && (value != ValueType::Object || variable.type.isArray))
        return report(Message::ForEachVariable, variable.pos);
    if (!isIndexable(group.type) || (!group.type.isArray && !isEnumerable(group.type)))
        report(Message::ForEachOperand, group.pos);
}

/// A default member may return the object that lists the elements, as Controls of a form. Of what is not known, the
/// program decides when it runs.
bool Binder::isEnumerable(const Type& type) const {
    Type at = type;
    for (int i = 0; i < kMostDefaults; ++i) {
        if (at.isArray || at.value != ValueType::Object || at.id == 0) return true;
        const Scope& scope = program_.scope(at.id);
        if (scope.findEnumerator() || scope.isOpen()) return true;
        const Entity* member = scope.findDefault();
        if (!member || !member->get || member->get->result.value != ValueType::Object) return false;
        at = member->get->result;
    }
    return true;
}

void Binder::doLoop(const DoStmt& loop) {
    if (loop.head != LoopTest::None) condition(loop.condition);
    ++doLoops_;
    block(loop.body);
    --doLoops_;
    if (loop.head == LoopTest::None) condition(loop.condition);
}

} // namespace qltoolkit
