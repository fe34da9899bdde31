// Calls of procedures of the project, and of members that are found by name.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::LateUse;
using image::Op;
using image::Pass;

/// A procedure that is called, with the object before it if it has one.
Place Emitter::procedurePlace(const Entity& entity, const Expr& expr, const Span<Argument>* given) {
    static const Span<Argument> kNoArguments{};
    const auto& list = given ? *given : kNoArguments;
    const auto* member = expr.kind == ExprKind::Member ? &as<MemberExpr>(expr) : nullptr;
    if (!entity.owner->source) {
        const bool isClass = entity.owner->kind == ScopeKind::LibraryClass;
        if (isClass && spelling(entity.owner->name) == "DebugObject")
            return resultPlace(libraryCall(entity, list, "Debug."));
        const bool hasObject = isClass && member && noteOfBase(*member).kind != OperandKind::Qualifier;
        if (hasObject) return libraryPlace(entity, objectOf(member->base), given);
        return resultPlace(libraryCall(entity, list));
    }
    if (!entity.get->body) { // a Declare: devices have no libraries of their desktop system
        return resultPlace(declaredCall(entity, list));
    }
    if (!entity.owner->isClass()) return resultPlace(call(*entity.get, list, nullptr, entity));
    const bool hasObject = member && noteOfBase(*member).kind != OperandKind::Qualifier;
    const Value object = hasObject ? objectOf(member->base) : me();
    return resultPlace(call(*entity.get, list, &object, entity));
}

/// A record that a function returns is written to a variable of the caller.
Value Emitter::resultRecord(const Type& type, std::vector<PassedArgument>& list) {
    const Value record{type, slots_.record(layout_.typeOf(type), layout_.slotsOf(type)), false};
    const Value ref{type, slots_.temporary(layout_.referenceTo(type))};
    out_.emitWide(Op::RefSlot, ref.slot, record.slot);
    list.push_back({passed(ref, layout_.referenceTo(type)), {}, {}});
    return record;
}

/// `assigned` is the value for a Property Let or Set.
Value Emitter::call(const Callable& callable, const Span<Argument>& given, const Value* object, const Entity& entity,
                    const Value* assigned) {
    std::vector<PassedArgument> list;
    const Scope& owner = *entity.owner;
    const bool isOwn = object && object->slot == me_; // Me is of exactly this class
    const bool mayBeOther = object && !isOwn && layout_.isInterface(owner.number);
    const bool isInterface = mayBeOther && !isFriend(callable);
    if (object) {
        Value self = mayBeOther ? checkClass(*object, {ValueType::Object}) : *object;
        if (mayBeOther && !isInterface) self = exactly(self, owner);
        self.isTemporary = false;
        list.push_back({passed(self), {}, {}});
    }
    const bool hasResult = !assigned && callable.result.value != ValueType::None;
    Value result{hasResult ? known(callable.result) : Type{ValueType::None}, image::kNoSlot};
    const bool isRecord = hasResult && returnsRecord(callable);
    if (isRecord) result = resultRecord(callable.result, list);
    arguments(callable, given, list);
    const bool isRecordAssigned = assigned && callable.result.value == ValueType::Record && !callable.result.isArray;
    if (isRecordAssigned) {
        list.push_back({passed(*assigned, layout_.referenceTo(callable.result)), {}, {}});
    } else if (assigned) {
        const Type type = callable.result;
        const bool isObject = type.value == ValueType::Object;
        const bool byVal = takesValueByVal(callable);
        const auto slot = temporary(type);
        (void)convert(isObject ? *assigned : Value{assigned->type, assigned->slot, false}, type, slot);
        list.push_back({byVal ? passed({type, slot}) : passedAddress(slot), {}, {}});
    }
    if (hasResult && !isRecord) result.slot = temporary(callable.result);
    const auto slot = isRecord || !hasResult ? image::kNoSlot : result.slot;
    const auto count = static_cast<std::uint32_t>(list.size());
    if (isInterface) {
        out_.emit(Op::CallInterface, slot, 0, count);
        out_.extra(layout_.classOf(owner.number) | memberNumber(entity, callable) << 16);
    } else {
        out_.emit(object && !isOwn ? Op::CallMethod : Op::Call, slot, 0, count);
        out_.extra(callable.number);
    }
    words(list);
    storeBackAfterCall(list);
    return result;
}

/// For a Friend procedure, the object has to be of the class itself.
Value Emitter::exactly(const Value& object, const Scope& owner) {
    const auto number = layout_.classOf(owner.number);
    const Value result{object.type, slots_.temporary({image::BaseType::Object, image::TypeForm::Value, number})};
    out_.emit(Op::CastObject, result.slot, object.slot);
    out_.extra(number);
    return result;
}

/// The place of a procedure among the members of an interface: its procedures, then for each field the one that reads it,
/// the field itself, and those that assign it.
std::uint32_t Emitter::memberNumber(const Entity& entity, const Callable& callable) const {
    std::uint32_t number = 0;
    for (const auto& [member, decl] : entity.owner->source->callables) {
        if (decl->kind != DeclKind::Procedure) continue;
        if (decl == callable.body) return number;
        ++number;
    }
    for (const auto& [field, decl] : entity.owner->source->variables) {
        if (!isLateField(*field)) continue;
        const auto& property = layout_.accessTo(*field)->property;
        if (property.get == &callable) return number;
        number += 2;
        for (const auto* each : {property.let, property.set}) {
            if (each == &callable) return number;
            if (each) ++number;
        }
    }
    return 0;
}

/// A member that is found by name, or the default member.
Value Emitter::lateCall(const Place& member, LateUse use, const Value* assigned, bool wantsResult) {
    static const Span<Argument> kNoArguments{};
    const auto& given = member.arguments ? *member.arguments : kNoArguments;
    const Value object = toVariant(member.object, {});
    std::vector<std::uint16_t> slots;
    std::vector<Symbol> named;
    if (member.isBang)
        slots.push_back(
            static_cast<std::uint16_t>(toVariant(textConstant(std::string(spelling(member.name))), {}).slot));
    for (const auto& each : given)
        if (each.name != Symbol::None) named.push_back(each.name);
    const auto copies = lateArguments(given, 0, member.entity != nullptr, slots);
    if (assigned) {
        const auto slot = temporary({ValueType::Variant});
        (void)moved(toVariant({assigned->type, assigned->slot, false}, {}), slot);
        slots.push_back(static_cast<std::uint16_t>(slot));
    }
    Value result{{ValueType::Variant}, wantsResult ? temporary({ValueType::Variant}) : image::kNoSlot};
    out_.emit(Op::CallLate, result.slot, object.slot, static_cast<std::uint32_t>(slots.size()));
    const bool isDefault = member.name == Symbol::None || member.isBang;
    if (isDefault)
        out_.extra(image::kNone);
    else
        out_.extra(out_.module().text(std::string(spelling(member.name))), FixKind::Text);
    out_.extra(static_cast<std::uint32_t>(use) | static_cast<std::uint32_t>(named.size()) << 8);
    for (const auto name : named) out_.extra(out_.module().text(std::string(spelling(name))), FixKind::Text);
    out_.halves(slots);
    storeBackAfterCall(copies);
    const bool isTyped = wantsResult && member.type.value != ValueType::Variant && !member.type.isArray &&
                         member.type.value != ValueType::Unknown && member.type.value != ValueType::None &&
                         member.type.value != ValueType::Record;
    return isTyped ? convert(result, member.type) : result;
}

/// CallByName(object, name, type of call, arguments): they are passed as to a member that is called late.
Value Emitter::callByName(const Span<Argument>& given) {
    const Value object = variantOf(*given[0].value);
    std::vector<std::uint16_t> slots;
    slots.push_back(static_cast<std::uint16_t>(convert(value(*given[1].value, {ValueType::String}), {}).slot));
    slots.push_back(static_cast<std::uint16_t>(convert(value(*given[2].value, {ValueType::Long}), {}).slot));
    const auto copies = lateArguments(given, 3, false, slots);
    const Value result{{ValueType::Variant}, temporary({ValueType::Variant})};
    out_.emit(Op::CallByName, result.slot, object.slot, static_cast<std::uint32_t>(slots.size()));
    out_.halves(slots);
    storeBackAfterCall(copies);
    return result;
}

/// Computes the arguments from `first` on and adds their slots.
std::vector<PassedArgument> Emitter::lateArguments(const Span<Argument>& given, std::uint32_t first, bool isOfLibrary,
                                                   std::vector<std::uint16_t>& slots) {
    std::vector<PassedArgument> copies;
    for (std::uint32_t i = first; i < given.size(); ++i) {
        if (!given[i].value) {
            slots.push_back(static_cast<std::uint16_t>(missing().slot));
            continue;
        }
        copies.push_back(lateArgument(*given[i].value, isOfLibrary));
        slots.push_back(static_cast<std::uint16_t>(image::slotOf(copies.back().word)));
    }
    return copies;
}

/// A Variant of its own, which is stored back if the argument is a variable. Members of libraries do not assign to their
/// arguments.
PassedArgument Emitter::lateArgument(const Expr& given, bool isOfLibrary) {
    if (isOfLibrary || !isVariable(given)) {
        const auto slot = temporary({ValueType::Variant});
        (void)moved(toVariant(value(given), slot), slot);
        return {passedAddress(slot), {}, {}};
    }
    const Place variable = place(given);
    const bool isWhole =
        variable.type.isArray || variable.type.value == ValueType::Object || variable.type.value == ValueType::Record;
    if (isWhole) {
        const auto slot = temporary({ValueType::Variant});
        (void)moved(toVariant(load(variable), {}), slot);
        return {passedAddress(slot), {}, {}};
    }
    return copied(variable, load(variable), {Symbol::None, {ValueType::Variant}});
}

} // namespace qltoolkit
