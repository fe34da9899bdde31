// Conditions as jumps.
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/code/literals.h"
#include "Components/QLToolkit/code/value_kinds.h"
#include "Components/QLToolkit/types/operators.h"
#include <utility>

namespace qltoolkit {

using image::Op;

namespace {

Operator negated(Operator op) {
    switch (op) {
    case Operator::Equal: return Operator::NotEqual;
    case Operator::NotEqual: return Operator::Equal;
    case Operator::Less: return Operator::GreaterEqual;
    case Operator::LessEqual: return Operator::Greater;
    case Operator::Greater: return Operator::LessEqual;
    default: return Operator::Less;
    }
}

Operator swapped(Operator op) {
    switch (op) {
    case Operator::Less: return Operator::Greater;
    case Operator::LessEqual: return Operator::GreaterEqual;
    case Operator::Greater: return Operator::Less;
    case Operator::GreaterEqual: return Operator::LessEqual;
    default: return op;
    }
}

Op longJump(Operator op) {
    switch (op) {
    case Operator::Equal: return Op::JumpEqualLong;
    case Operator::NotEqual: return Op::JumpNotEqualLong;
    case Operator::Less: return Op::JumpLessLong;
    default: return Op::JumpLessEqualLong;
    }
}

Op floatJump(Operator op) {
    switch (op) {
    case Operator::Equal: return Op::JumpEqualFloat;
    case Operator::NotEqual: return Op::JumpNotEqualFloat;
    case Operator::Less: return Op::JumpLessFloat;
    default: return Op::JumpLessEqualFloat;
    }
}

Op numberJump(Operator op) {
    switch (op) {
    case Operator::Equal: return Op::JumpEqualLongK;
    case Operator::NotEqual: return Op::JumpNotEqualLongK;
    case Operator::Less: return Op::JumpLessLongK;
    case Operator::LessEqual: return Op::JumpLessEqualLongK;
    case Operator::Greater: return Op::JumpGreaterLongK;
    default: return Op::JumpGreaterEqualLongK;
    }
}

/// Nothing for a test of equality.
std::optional<Op> floatNumberJump(Operator op) {
    switch (op) {
    case Operator::Less: return Op::JumpLessFloatK;
    case Operator::LessEqual: return Op::JumpLessEqualFloatK;
    case Operator::Greater: return Op::JumpGreaterFloatK;
    case Operator::GreaterEqual: return Op::JumpGreaterEqualFloatK;
    default: return std::nullopt;
    }
}

std::optional<std::int64_t> smallNumber(const Expr& expr) {
    const bool isBoolean = expr.kind == ExprKind::Boolean;
    const auto value = isBoolean ? std::optional<std::int64_t>(expr.detail == 1 ? -1 : 0) : wholeLiteral(expr);
    if (!value || *value < -128 || *value > 127) return std::nullopt;
    return value;
}

} // namespace

/// Jumps if the condition is `when`. Null counts as False.
void Emitter::condition(const Expr& expr, bool when, Label target) {
    const auto mark = slots_.mark();
    if (expr.kind == ExprKind::Unary && expr.op() == Operator::Not && typeOfExpr(expr).value == ValueType::Boolean) {
        condition(*as<UnaryExpr>(expr).operand, !when, target);
    } else if (expr.kind != ExprKind::Binary || !compareCondition(as<BinaryExpr>(expr), when, target)) {
        Value tested = value(expr);
        if (tested.type.value == ValueType::Variant && !tested.type.isArray) {
            const Value isTrue{{ValueType::Boolean}, temporary({ValueType::Boolean})};
            out_.emit(Op::IsTrue, isTrue.slot, tested.slot);
            tested = isTrue;
        } else if (!isWhole(tested.type.value) || tested.type.isArray) {
            tested = convert(tested, {ValueType::Boolean});
        }
        clearObjects(mark);
        out_.jump(when ? Op::JumpTrue : Op::JumpFalse, target, tested.slot);
    }
    slots_.releaseTo(mark);
}

bool Emitter::compareCondition(const BinaryExpr& expr, bool when, Label target) {
    const Operator op = expr.op();
    if (!isComparison(op)) return false;
    const auto type = [&](const Expr& each) {
        const Type found = typeOfExpr(each);
        return found.isArray ? ValueType::Array : found.value;
    };
    const auto operation = operationOf(op, type(*expr.left), type(*expr.right));
    if (!operation || operation->operands == ValueType::Variant || operation->result != ValueType::Boolean)
        return false;
    const auto mark = slots_.mark();
    const Operator wanted = when ? op : negated(op);
    const auto number = smallNumber(*expr.right);
    Value left = value(*expr.left, {operation->operands});
    if (isWhole(operation->operands) && number) {
        clearObjects(mark);
        out_.jump(numberJump(wanted), target, left.slot, static_cast<std::uint32_t>(*number));
        return true;
    }
    const auto fraction = operation->operands == ValueType::Double ? numberLiteral(*expr.right) : std::nullopt;
    if (const auto jump = floatNumberJump(wanted); jump && fraction) {
        if (const auto place = out_.number(*fraction); place <= 0xFF) {
            clearObjects(mark);
            out_.jump(*jump, target, left.slot, place);
            return true;
        }
    }
    if (left.variable && mayChange(*expr.right, left)) left = moved(left, temporary(left.type));
    const Value right = value(*expr.right, {operation->operands});
    const auto before = slots_.mark();
    clearObjects(mark);
    compareJump(op, left, right, when, target);
    slots_.releaseTo(before);
    return true;
}

/// Both operands have the type in which they are compared.
void Emitter::compareJump(Operator op, const Value& left, const Value& right, bool when, Label target) {
    Operator wanted = when ? op : negated(op);
    const ValueType type = left.type.value;
    if (isWhole(type) || isFloat(type)) {
        const bool isSwapped = wanted == Operator::Greater || wanted == Operator::GreaterEqual;
        if (isSwapped) wanted = swapped(wanted);
        const auto first = isSwapped ? right.slot : left.slot, second = isSwapped ? left.slot : right.slot;
        out_.jump(isWhole(type) ? longJump(wanted) : floatJump(wanted), target, first, second);
        return;
    }
    const auto slot = temporary({ValueType::Long});
    if (type == ValueType::Currency)
        out_.emit(Op::CompareCurrency, slot, left.slot, right.slot);
    else
        out_.emit(module_.comparesText ? Op::CompareNoCase : Op::CompareText, slot, left.slot, right.slot);
    out_.jump(numberJump(wanted), target, slot, 0);
}

/// Objects in temporaries are released before the next jump or statement, so that Terminate comes when it should.
void Emitter::clearObjects(std::size_t mark) {
    auto& used = slots_.inUse();
    for (std::size_t i = mark; i < used.size(); ++i) clearObject(used[i]);
}

void Emitter::clearObject(Slots::Temporary& temporary) {
    if (std::exchange(temporary.mustClear, false)) out_.emit(Op::Clear, temporary.slot);
}

/// Gives back temporaries except the result. Objects end with the statement, in the order in which they were made; an expression
/// with very many releases them earlier.
void Emitter::releaseOperands(std::size_t mark, std::uint32_t result) {
    constexpr std::size_t kMostHeld = 64;
    auto& used = slots_.inUse();
    const bool holdsObjects = used.size() <= kMostHeld;
    for (std::size_t i = mark; i < used.size(); ++i) {
        const bool isHeld = holdsObjects && used[i].type.form == image::TypeForm::Value;
        if (!isHeld && used[i].slot != result) clearObject(used[i]);
    }
    slots_.keepHeld(mark, result);
}

namespace {

bool isCall(const Operand& note) {
    if (note.kind == OperandKind::Late || note.kind == OperandKind::Property) return true;
    return note.kind == OperandKind::Value && note.entity;
}

} // namespace

/// Whether computing an expression may assign to the variable that a value is.
bool Emitter::mayChange(const Expr& expr, const Value& value) const { return mentions(expr, value.variable); }

bool Emitter::mentions(const Expr& expr, const Entity* entity) const {
    if (expr.kind < ExprKind::Me) return false;
    if (expr.kind == ExprKind::Name && expr.note != 0 && !isCall(noteOf(expr))) return false;
    auto& waiting = waiting_;
    waiting.assign(1, &expr);
    bool calls = false, found = false;
    while (!waiting.empty()) {
        const Expr* at = waiting.back();
        waiting.pop_back();
        if (!at) continue;
        const Operand& note = noteOf(*at);
        calls |= at->note == 0 || isCall(note);
        found |= note.entity == entity;
        switch (at->kind) {
        case ExprKind::Member:
        case ExprKind::Bang: waiting.push_back(as<MemberExpr>(*at).base); break;
        case ExprKind::Index:
            waiting.push_back(as<IndexExpr>(*at).callee);
            for (const auto& each : as<IndexExpr>(*at).arguments) waiting.push_back(each.value);
            break;
        case ExprKind::Paren:
        case ExprKind::Unary: waiting.push_back(as<UnaryExpr>(*at).operand); break;
        case ExprKind::Binary:
            waiting.push_back(as<BinaryExpr>(*at).left);
            waiting.push_back(as<BinaryExpr>(*at).right);
            break;
        case ExprKind::TypeOf: waiting.push_back(as<TypeOfExpr>(*at).operand); break;
        default: break;
        }
    }
    return calls && found;
}

} // namespace qltoolkit
