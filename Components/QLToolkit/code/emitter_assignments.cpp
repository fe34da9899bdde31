// Let, Set, LSet, RSet and Mid.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::LateUse;
using image::Op;

void Emitter::let(const AssignStmt& stmt) {
    const Type type = typeOfExpr(*stmt.target);
    const Operand& note = noteOf(*stmt.target);
    // A variable of the procedure needs no code to be found, so the value may be computed directly into it.
    if (stmt.target->kind == ExprKind::Name && note.entity && note.kind == OperandKind::Variable) {
        const Place target = place(*stmt.target);
        if (type.isArray) return assignArray(target, *stmt.value);
        if (type.value == ValueType::Record) return assignRecord(target, *stmt.value);
        const bool isPlain = target.kind == PlaceKind::Slot && type.value != ValueType::Object;
        if (isPlain && append(target, *stmt.value)) return;
        if (isPlain && type.value != ValueType::FixedString) return into(*stmt.value, type, target.slot);
        return assignValue(target, value(*stmt.value));
    }
    if (type.isArray && note.kind != OperandKind::Property) return assignArray(place(*stmt.target), *stmt.value);
    if (type.value == ValueType::Record && note.kind == OperandKind::Variable)
        return assignRecord(place(*stmt.target), *stmt.value);
    if (type.value == ValueType::Record && !type.isArray && typeOfExpr(*stmt.value) == type) {
        const Value record = recordOf(*stmt.value);
        return assignValue(place(*stmt.target), record);
    }
    Value given = value(*stmt.value);
    // Date and Time: the clock belongs to the device.
    const bool isOfLibrary = note.entity && note.entity->owner && note.entity->owner->kind == ScopeKind::LibraryModule;
    if (isOfLibrary && note.entity->kind == EntityKind::Property) {
        (void)fail(basic::kPermissionDenied, {});
        return;
    }
    if (given.variable && mayChange(*stmt.target, given)) given = moved(given, temporary(given.type));
    assignValue(place(*stmt.target), given);
}

/// s = s & a & b appends to s in place, if a and b have nothing to do with it.
bool Emitter::append(const Place& target, const Expr& value) {
    if (target.type.value != ValueType::String || !target.entity) return false;
    std::vector<const Expr*> parts;
    const Expr* at = &value;
    while (at->kind == ExprKind::Binary && at->op() == Operator::Concat && typeOfExpr(*at).value == ValueType::String) {
        parts.push_back(as<BinaryExpr>(*at).right);
        at = as<BinaryExpr>(*at).left;
    }
    if (parts.empty() || at->kind != ExprKind::Name || noteOf(*at).entity != target.entity) return false;
    for (const auto* part : parts)
        if (!isPure(*part, target.entity)) return false;
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        const auto mark = slots_.mark();
        const Value text = this->value(**part, {ValueType::String});
        out_.emit(Op::AppendText, target.slot, text.slot);
        slots_.releaseTo(mark);
    }
    return true;
}

/// Whether computing an expression cannot fail half way, call procedures or read the variable.
bool Emitter::isPure(const Expr& expr, const Entity* variable) const {
    if (expr.kind <= ExprKind::Nothing) return true;
    const Operand& note = noteOf(expr);
    if (expr.kind == ExprKind::Paren) return isPure(*as<UnaryExpr>(expr).operand, variable);
    if (expr.kind != ExprKind::Name || expr.note == 0) return false;
    const bool isValue = note.kind == OperandKind::Constant || note.kind == OperandKind::Variable;
    const bool isSimple =
        !note.type.isArray && note.type.value != ValueType::Variant && note.type.value != ValueType::Object;
    return isValue && isSimple && note.entity != variable;
}

/// Let: the value is converted to the type of the place.
void Emitter::assignValue(const Place& target, const Value& value) {
    static const Span<Argument> kNoArguments{};
    const auto& given = target.arguments ? *target.arguments : kNoArguments;
    if (target.kind == PlaceKind::Property) {
        const Entity& entity = *target.entity;
        const Value* object = target.object.type.value == ValueType::Object ? &target.object : nullptr;
        if (entity.let) {
            (void)call(*entity.let, given, object, entity, &value);
            return;
        }
        const Value held = call(*entity.get, given, object, entity); // its default property
        (void)lateCall(latePlace(held, Symbol::None, nullptr, {}), LateUse::Let, &value, false);
        return;
    }
    if (target.kind == PlaceKind::Late) {
        (void)lateCall(target, LateUse::Let, &value, false);
        return;
    }
    if (target.type.value == ValueType::Record && !target.type.isArray) {
        (void)fail(basic::kTypeMismatch, {});
        return;
    }
    if (target.type.isArray) {
        out_.emit(Op::VariantToArray, array(target).slot, toVariant(value, {}).slot);
        return;
    }
    if (target.type.value == ValueType::Object) { // its default property
        (void)lateCall(latePlace(load(target), Symbol::None, nullptr, {}), LateUse::Let, &value, false);
        return;
    }
    if (target.type.value == ValueType::FixedString) {
        const Value text = convert(value, {ValueType::String});
        const Value fixed{{ValueType::String}, temporary({ValueType::String})};
        out_.emit(Op::FixText, fixed.slot, text.slot);
        out_.extra(target.type.id);
        return store(target, {target.type, fixed.slot});
    }
    if (target.kind == PlaceKind::Slot && target.type.value != ValueType::Variant) {
        (void)convert(value, target.type, target.slot);
        return;
    }
    Value converted = convert(value, target.kind == PlaceKind::VariantElement ? Type{} : target.type);
    const bool isVariant = target.type.value == ValueType::Variant;
    if (isVariant && converted.type.value == ValueType::Object) converted = toVariant(converted, {});
    converted.type = isVariant ? Type{} : target.type;
    store(target, converted);
}

void Emitter::assignArray(const Place& target, const Expr& given) {
    const Value into = array(target);
    Value source = value(given);
    if (source.type.isArray) {
        source.isTemporary = source.isTemporary && noteOf(given).kind == OperandKind::Value;
        out_.emit(source.isTemporary ? Op::TakeArray : Op::CopyArray, into.slot, source.slot);
    } else if (source.type.value == ValueType::String || source.type.value == ValueType::FixedString) {
        out_.emit(Op::TextToBytes, into.slot, source.slot);
    } else if (target.type.value == ValueType::Byte && source.type.value == ValueType::Object) {
        out_.emit(Op::TextToBytes, into.slot, convert(source, {ValueType::String}).slot);
    } else {
        out_.emit(Op::VariantToArray, into.slot, toVariant(source, {}).slot);
    }
}

void Emitter::assignRecord(const Place& target, const Expr& given) {
    if (typeOfExpr(given).value != ValueType::Record) {
        (void)fail(basic::kTypeMismatch, {});
        return;
    }
    const Value from = recordOf(given);
    const Value to = reference(target);
    out_.emit(Op::CopyRecord, to.slot, from.slot);
}

void Emitter::set(const AssignStmt& stmt) {
    const Value object = value(*stmt.value);
    setObject(place(*stmt.target), object);
}

/// The object itself in a Variant, not its default member.
Value Emitter::boxed(const Value& object) { return toVariant(checkClass(object, {ValueType::Object}), {}); }

void Emitter::setObject(const Place& target, Value object) {
    static const Span<Argument> kNoArguments{};
    const auto& given = target.arguments ? *target.arguments : kNoArguments;
    if (target.kind == PlaceKind::Property) {
        const Entity& entity = *target.entity;
        const Value* self = target.object.type.value == ValueType::Object ? &target.object : nullptr;
        const Callable& callable = *(entity.set ? entity.set : entity.let);
        const Value assigned = callable.result.value == ValueType::Variant ? boxed(object) : object;
        (void)call(callable, given, self, entity, &assigned);
        return;
    }
    if (target.kind == PlaceKind::Late) {
        (void)lateCall(target, LateUse::Set, &object, false);
        return;
    }
    if (target.type.value == ValueType::Variant) {
        const Value value = boxed(object);
        return store(target, {{ValueType::Variant}, value.slot, value.isTemporary});
    }
    Value checked = checkClass(object, target.type);
    checked.type = target.type;
    if (target.withEvents && target.kind == PlaceKind::Field) {
        out_.emit(Op::SetSource, checked.slot, target.slot, target.offset);
        return;
    }
    store(target, checked);
}

/// LSet and RSet: the text keeps its length.
void Emitter::align(const AssignStmt& stmt) {
    const Place target = place(*stmt.target);
    if (target.type.value == ValueType::Record) {
        if (typeOfExpr(*stmt.value).id == target.type.id) return assignRecord(target, *stmt.value);
        NativeCall call;
        passReference(call, target);
        passReference(call, place(*stmt.value));
        (void)finish(call, "LSetRecord", {ValueType::None});
        return;
    }
    const Value text = value(*stmt.value, {ValueType::String});
    const Value present = convert(load(target), {ValueType::String});
    Value kept = present;
    kept.isTemporary = false;
    assignValue(target, native(stmt.kind == StmtKind::LSet ? "LSet" : "RSet", {ValueType::String}, {kept, text}));
}

/// Mid(s, start, length) = text.
void Emitter::midAssign(const MidAssignStmt& stmt) {
    const Value text = value(*stmt.value, {ValueType::String});
    const Place target = place(*stmt.target);
    const Value start = value(*stmt.start, {ValueType::Long});
    const Value length = stmt.length ? value(*stmt.length, {ValueType::Long}) : longConstant(-1, {});
    NativeCall call;
    const bool isText = target.type.value == ValueType::String || target.type.value == ValueType::FixedString;
    const bool isDirect = isText && isAddressable(target);
    Place changed = target;
    if (!isDirect) {
        const Value copy = convert(load(target), {ValueType::String}, temporary({ValueType::String}));
        changed = resultPlace({{ValueType::String}, copy.slot, false});
    }
    changed.type = {ValueType::String};
    passReference(call, changed);
    for (const auto& each : {start, length, text}) pass(call, each);
    // With a length of -1 as many characters as there are.
    (void)finish(call, stmt.bytes ? "MidB=" : "Mid=", {ValueType::None});
    if (!isDirect) assignValue(target, {{ValueType::String}, changed.slot, false});
}

} // namespace qltoolkit
