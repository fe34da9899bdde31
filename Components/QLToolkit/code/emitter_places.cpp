// Where variables, elements, fields and properties are.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::LateUse;
using image::Op;

Place Emitter::resultPlace(const Value& value) {
    Place result;
    result.type = known(value.type);
    result.slot = value.slot;
    result.isTemporary = value.isTemporary;
    return result;
}

Place Emitter::place(const Expr& expr) { return place(expr, nullptr); }

/// `given`: the arguments that follow, if the expression takes them.
Place Emitter::place(const Expr& expr, const Span<Argument>* given) {
    switch (expr.kind) {
    case ExprKind::Name:
    case ExprKind::Member:
    case ExprKind::Bang: return namePlace(expr, given);
    case ExprKind::Index: {
        const auto& index = as<IndexExpr>(expr);
        if (expr.note != 0) return indexPlace(index);
        return place(*index.callee, &index.arguments);
    }
    default: return resultPlace(value(expr));
    }
}

Place Emitter::namePlace(const Expr& expr, const Span<Argument>* given) {
    const Operand& note = noteOf(expr);
    if (expr.kind == ExprKind::Bang) {
        const auto& bang = as<MemberExpr>(expr);
        Place result = latePlace(objectOf(bang.base), Symbol::None, nullptr, note.type);
        result.name = bang.name;
        result.isBang = true;
        return result;
    }
    if (note.entity && note.kind != OperandKind::Late) return entityPlace(*note.entity, expr, given);
    if (expr.kind != ExprKind::Member) return resultPlace(fail(basic::kInvalidProcedureCall, note.type));
    const auto& member = as<MemberExpr>(expr);
    return latePlace(objectOf(member.base), member.name, given, note.type);
}

Place Emitter::entityPlace(const Entity& entity, const Expr& expr, const Span<Argument>* given) {
    switch (entity.kind) {
    case EntityKind::Variable: return ownPlace(entity, expr);
    case EntityKind::Constant: return resultPlace(constant(entity.constant->value, std::nullopt));
    case EntityKind::Procedure: return procedurePlace(entity, expr, given);
    case EntityKind::Property:
        if (entity.owner->source) {
            const auto* member = expr.kind == ExprKind::Member ? &as<MemberExpr>(expr) : nullptr;
            const bool isClass = entity.owner->isClass();
            const bool hasBase = member && isClass && noteOfBase(*member).kind != OperandKind::Qualifier;
            return propertyPlace(entity, hasBase ? objectOf(member->base) : isClass ? me() : Value{}, given);
        }
        return procedurePlace(entity, expr, given);
    case EntityKind::Module: { // the object of a predeclared class
        Place result;
        result.kind = PlaceKind::Global;
        result.type = known(entity.type);
        result.offset = layout_.predeclared(entity.inner->number);
        result.isNew = true;
        return result;
    }
    default: return resultPlace(fail(basic::kPropertyOrMethodNotSupported, noteOf(expr).type));
    }
}

/// What is before the point.
const Operand& Emitter::noteOfBase(const MemberExpr& expr) const {
    static const Operand kNoOperand{};
    return expr.base ? noteOf(*expr.base) : kNoOperand;
}

/// A variable, or a field of a record or an object.
Place Emitter::ownPlace(const Entity& entity, const Expr& expr) {
    const bool isMember = expr.kind == ExprKind::Member;
    const auto* member = isMember ? &as<MemberExpr>(expr) : nullptr;
    if (entity.owner && entity.owner->kind == ScopeKind::Record) return fieldOf(basePlace(member->base), entity);
    const bool isField = entity.owner && entity.owner->isClass();
    if (!isField) return variablePlace(entity);
    const bool hasBase = isMember && noteOfBase(*member).kind != OperandKind::Qualifier;
    if (!hasBase) return variablePlace(entity);
    const Value object = objectOf(member->base);
    if (const auto* access = layout_.accessTo(entity)) return propertyPlace(access->property, object, nullptr);
    if (layout_.exactClass(object.type) == 0) return latePlace(object, entity.name, nullptr, entity.type);
    Place result;
    result.kind = PlaceKind::Field;
    result.type = known(entity.type);
    result.slot = object.slot;
    result.offset = entity.place;
    result.isNew = makesObject(entity);
    result.withEvents = entity.withEvents;
    return result;
}

Place Emitter::variablePlace(const Entity& entity) const {
    if (!entity.owner) return places_[entity.place];
    if (!shared_.empty())
        if (const auto found = shared_.find(&entity); found != shared_.end()) return found->second;
    Place result;
    result.type = known(entity.type);
    result.offset = entity.place;
    result.isNew = makesObject(entity);
    result.withEvents = entity.withEvents;
    const bool isField = entity.owner && entity.owner->isClass();
    result.kind = isField ? PlaceKind::Field : PlaceKind::Global;
    if (isField) result.slot = me_;
    return result;
}

/// The record before a point.
Place Emitter::basePlace(const Expr* base) {
    if (base) return place(*base);
    return withs_.back().record;
}

Place Emitter::fieldOf(const Place& record, const Entity& field) {
    Place result = record;
    if (record.kind == PlaceKind::Element) {
        const Value ref = referenceAt(record);
        result = {};
        result.kind = PlaceKind::Ref;
        result.slot = ref.slot;
    } else if (record.kind == PlaceKind::Property || record.kind == PlaceKind::Late) {
        result = resultPlace(load(record));
    }
    if (result.kind == PlaceKind::Slot || result.kind == PlaceKind::Wide) {
        result.slot += field.place;
        result.kind = result.slot < image::kMostDirectSlots - 1 ? PlaceKind::Slot : PlaceKind::Wide;
    } else {
        result.offset += field.place;
    }
    result.isPart = true;
    result.type = known(field.type);
    result.entity = nullptr;
    result.isNew = makesObject(field);
    return result;
}

Place Emitter::element(const Value& array, const Type& type, const Span<Argument>& indexes) {
    Place result;
    result.kind = PlaceKind::Element;
    result.type = known(type);
    result.type.isArray = false;
    result.slot = array.slot;
    if (indexes.size() == 1) {
        result.index = value(*indexes[0].value, {ValueType::Long}).slot;
        return result;
    }
    std::vector<std::uint16_t> slots;
    for (const auto& each : indexes)
        slots.push_back(static_cast<std::uint16_t>(value(*each.value, {ValueType::Long}).slot));
    result.index = temporary({ValueType::Long});
    result.isFlat = true;
    out_.emit(Op::FindElement, result.index, array.slot, static_cast<std::uint32_t>(slots.size()));
    out_.halves(slots);
    return result;
}

/// An element, or the default member with arguments.
Place Emitter::indexPlace(const IndexExpr& expr) {
    const Type base = typeOfExpr(*expr.callee);
    if (base.isArray) {
        const Place whole = place(*expr.callee);
        if (expr.arguments.empty()) return whole;
        return element(array(whole), base, expr.arguments);
    }
    const Type type = noteOf(expr).type;
    if (base.value == ValueType::Object && base.id != 0) {
        const Scope& scope = layout_.program().scope(base.id);
        const Entity* member = scope.findDefault();
        const Value object = objectOf(expr.callee);
        if (member && member->owner->source && layout_.exactClass(base) != 0) {
            const bool isProperty = member->kind == EntityKind::Property;
            if (isProperty) return propertyPlace(*member, object, &expr.arguments);
            if (member->kind == EntityKind::Procedure)
                return resultPlace(call(*member->get, expr.arguments, &object, *member));
        }
        Place result = latePlace(object, Symbol::None, &expr.arguments, type);
        if (member && !member->owner->source) result.entity = member;
        return result;
    }
    if (expr.arguments.empty()) return place(*expr.callee);
    // Late bound: the array that a Variant holds, or an object's default member.
    Place result;
    result.kind = PlaceKind::VariantElement;
    result.type = {ValueType::Variant};
    const Place holder = place(*expr.callee);
    const bool isReferred = holder.type.value == ValueType::Variant && !holder.type.isArray &&
                            holder.kind != PlaceKind::Slot && isAddressable(holder);
    if (isReferred) {
        result.object = reference(holder);
        result.isFlat = true;
    } else {
        result.object = toVariant(load(holder), {});
    }
    std::vector<std::uint16_t> slots;
    for (const auto& each : expr.arguments) {
        const Value index = each.value ? variantOf(*each.value) : missing();
        slots.push_back(static_cast<std::uint16_t>(index.slot));
    }
    result.firstIndex = static_cast<std::uint32_t>(indexes_.size());
    result.indexes = expr.arguments.size();
    indexes_.insert(indexes_.end(), slots.begin(), slots.end());
    return result;
}

Place Emitter::latePlace(const Value& object, Symbol name, const Span<Argument>* arguments, const Type& type) {
    Place result;
    result.kind = PlaceKind::Late;
    result.type = type.value == ValueType::Unknown || type.value == ValueType::None ? Type{} : type;
    result.object = object;
    result.name = name;
    result.arguments = arguments;
    return result;
}

/// A member that a library describes.
Place Emitter::libraryPlace(const Entity& entity, const Value& object, const Span<Argument>* arguments) {
    Place result = latePlace(object, entity.name, arguments, entity.type);
    result.entity = &entity;
    return result;
}

Place Emitter::propertyPlace(const Entity& entity, const Value& object, const Span<Argument>* arguments) {
    Place result;
    result.kind = PlaceKind::Property;
    result.type = known(entity.type);
    result.entity = &entity;
    result.object = object;
    result.arguments = arguments;
    return result;
}

/// The object before a point, or of the innermost With.
Value Emitter::objectOf(const Expr* base) {
    if (base) return value(*base);
    const auto& with = withs_.back();
    return with.isRecord ? Value{} : with.object;
}

} // namespace qltoolkit
