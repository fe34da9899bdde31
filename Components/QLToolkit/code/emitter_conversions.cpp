// Conversions between declared types.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::BaseType;

namespace {

enum class Group : std::uint8_t { Long, Float, Currency, Text, Object, Variant };

Group groupOf(ValueType type) {
    switch (type) {
    case ValueType::Boolean:
    case ValueType::Byte:
    case ValueType::Integer:
    case ValueType::Long: return Group::Long;
    case ValueType::Single:
    case ValueType::Double:
    case ValueType::Date: return Group::Float;
    case ValueType::Currency: return Group::Currency;
    case ValueType::String:
    case ValueType::FixedString: return Group::Text;
    case ValueType::Object:
    case ValueType::Nothing: return Group::Object;
    default: return Group::Variant;
    }
}

std::uint32_t baseNumber(ValueType type) { return static_cast<std::uint32_t>(baseTypeOf(type)); }

/// Whether each value of one type of whole numbers is one of the other.
bool fits(ValueType from, ValueType to) {
    if (from == to) return true;
    switch (to) {
    case ValueType::Long: return true;
    case ValueType::Integer: return from != ValueType::Long;
    default: return false;
    }
}

} // namespace

/// What a temporary holds may last longer than the statement, until it is used again.
void Emitter::holdsNoObject(std::uint32_t temporary) {
    for (auto& each : slots_.inUse())
        if (each.slot == temporary) each.mustClear = false;
}

/// Copies a value to a slot of its type.
Value Emitter::moved(const Value& value, std::uint32_t slot) {
    if (value.slot == slot) return value;
    const auto type = layout_.slotTypeOf(value.type);
    const bool takes = value.isTemporary;
    if (takes && slots_.isInUse(value.slot) && slots_.typeAt(slot) == slots_.typeAt(value.slot) &&
        out_.redirect(value.slot, slot)) {
        holdsNoObject(value.slot);
        return {value.type, slot};
    }
    switch (type.form == image::TypeForm::Array ? BaseType::None : type.base) {
    case BaseType::Text: out_.emit(takes ? Op::TakeText : Op::CopyText, slot, value.slot); break;
    case BaseType::Object: out_.emit(takes ? Op::TakeObject : Op::CopyObject, slot, value.slot); break;
    case BaseType::Variant: out_.emit(takes ? Op::TakeVariant : Op::CopyVariant, slot, value.slot); break;
    case BaseType::None: out_.emit(takes ? Op::TakeArray : Op::CopyArray, slot, value.slot); break;
    default: out_.emit(Op::Move, slot, value.slot);
    }
    if (takes) holdsNoObject(value.slot);
    return {value.type, slot};
}

/// Let-coercion: an object gives the value of its default member.
Value Emitter::converted(const Value& value, const Type& want, std::optional<std::uint32_t> target) {
    Value result = value;
    if (want.isArray || value.type.isArray) {
        if (!want.isArray && groupOf(want.value) == Group::Variant) result = toVariant(value, target);
        if (!want.isArray && groupOf(want.value) == Group::Text) result = toText(value, target);
        return target ? moved(result, *target) : result;
    }
    const Group to = groupOf(want.value);
    if (to == Group::Object) {
        result = checkClass(value, want);
        result.type = want;
        return target ? moved(result, *target) : result;
    }
    if (value.type.value == ValueType::Record) return value;
    if (value.type.value != want.value || want.value == ValueType::FixedString)
        result = convertSimple(value, want.value, target);
    if (to != Group::Variant) result.type = {want.value, false, want.isEnum, want.id};
    return target ? moved(result, *target) : result;
}

Value Emitter::convertSimple(const Value& value, ValueType to, std::optional<std::uint32_t> target) {
    // A default member decides what an object is worth.
    if (groupOf(value.type.value) == Group::Object) {
        const Value boxed = toVariant(value, {});
        if (groupOf(to) != Group::Variant) return convertSimple(boxed, to, target);
        const Value result{{ValueType::Variant}, targetOr(target, ValueType::Variant)};
        out_.emit(Op::VariantValue, result.slot, boxed.slot);
        return result;
    }
    switch (groupOf(to)) {
    case Group::Long: return toLong(value, to, target);
    case Group::Float: return toFloat(value, to, target);
    case Group::Currency: return toCurrency(value, target);
    case Group::Text: return toText(value, target);
    default: return toVariant(value, target);
    }
}

/// A whole number as one of another type.
Value Emitter::narrow(const Value& value, ValueType to, std::optional<std::uint32_t> target) {
    if (fits(value.type.value, to)) return value;
    const Value result{{to}, targetOr(target, to)};
    if (to == ValueType::Boolean) {
        out_.emit(Op::ToBoolean, result.slot, value.slot);
    } else if (to == ValueType::Byte && value.type.value == ValueType::Boolean) {
        // True is 255.
        out_.emit(Op::AndLong, result.slot, value.slot, longConstant(0xFF, {}).slot);
    } else {
        out_.emit(to == ValueType::Byte ? Op::CheckByte : Op::CheckInteger, result.slot, value.slot);
    }
    return result;
}

Value Emitter::toLong(const Value& value, ValueType to, std::optional<std::uint32_t> target) {
    const Group from = groupOf(value.type.value);
    if (from == Group::Long) return narrow(value, to, target);
    if (from == Group::Text || from == Group::Variant) {
        const Value result{{to}, targetOr(target, to)};
        out_.emit(from == Group::Text ? Op::TextToLong : Op::VariantToLong, result.slot, value.slot, baseNumber(to));
        return result;
    }
    const bool isFloat = from == Group::Float;
    if (to == ValueType::Boolean) {
        const Value result{{to}, targetOr(target, to)};
        out_.emit(isFloat ? Op::FloatToBoolean : Op::CurrencyToBoolean, result.slot, value.slot);
        return result;
    }
    const Value whole{{ValueType::Long}, to == ValueType::Long ? targetOr(target, to) : temporary({ValueType::Long})};
    out_.emit(isFloat ? Op::FloatToLong : Op::CurrencyToLong, whole.slot, value.slot);
    return narrow(whole, to, target);
}

Value Emitter::toFloat(const Value& value, ValueType to, std::optional<std::uint32_t> target) {
    const ValueType from = value.type.value;
    const Value result{{to}, targetOr(target, to)};
    switch (groupOf(from)) {
    case Group::Text: out_.emit(Op::TextToFloat, result.slot, value.slot, baseNumber(to)); return result;
    case Group::Variant: out_.emit(Op::VariantToFloat, result.slot, value.slot, baseNumber(to)); return result;
    case Group::Float:
        if (to == ValueType::Double || (to == ValueType::Date && from == ValueType::Date))
            return {{to}, value.slot, value.isTemporary, value.variable};
        out_.emit(to == ValueType::Date ? Op::CheckDate : Op::RoundSingle, result.slot, value.slot);
        return result;
    case Group::Currency: out_.emit(Op::CurrencyToFloat, result.slot, value.slot); break;
    default: out_.emit(Op::LongToFloat, result.slot, value.slot);
    }
    const bool isExact = groupOf(from) == Group::Long && from != ValueType::Long;
    if (to == ValueType::Single && !isExact) out_.emit(Op::RoundSingle, result.slot, result.slot);
    if (to == ValueType::Date) out_.emit(Op::CheckDate, result.slot, result.slot);
    return result;
}

/// CLng(v) and its like convert error values too, which an assignment does not. CCur has no instruction for them.
std::optional<Value> Emitter::explicitConversion(const Expr& expr, ValueType to) {
    const Group group = groupOf(to);
    const bool takesErrors = typeOfExpr(expr) == Type{ValueType::Variant} && group <= Group::Currency;
    if (!takesErrors) return value(expr, {to});
    if (group == Group::Currency) return std::nullopt;
    const Value given = value(expr);
    const Value result{{to}, temporary({to})};
    out_.emit(group == Group::Long ? Op::VariantToLong : Op::VariantToFloat, result.slot, given.slot,
              baseNumber(to) | image::kTakesErrors);
    return result;
}

Value Emitter::toCurrency(const Value& value, std::optional<std::uint32_t> target) {
    if (value.type.value == ValueType::Currency) return value;
    const Value result{{ValueType::Currency}, targetOr(target, ValueType::Currency)};
    switch (groupOf(value.type.value)) {
    case Group::Long: out_.emit(Op::LongToCurrency, result.slot, value.slot); break;
    case Group::Float: out_.emit(Op::FloatToCurrency, result.slot, value.slot); break;
    case Group::Text: out_.emit(Op::TextToCurrency, result.slot, value.slot); break;
    default: out_.emit(Op::VariantToCurrency, result.slot, value.slot);
    }
    return result;
}

Value Emitter::toText(const Value& value, std::optional<std::uint32_t> target) {
    const ValueType from = value.type.value;
    if (groupOf(from) == Group::Text && !value.type.isArray) {
        Value result = value;
        result.type = {ValueType::String};
        return result;
    }
    const Value result{{ValueType::String}, targetOr(target, ValueType::String)};
    if (value.type.isArray)
        out_.emit(Op::BytesToText, result.slot, value.slot);
    else if (groupOf(from) == Group::Long)
        out_.emit(Op::LongToText, result.slot, value.slot, baseNumber(from));
    else if (groupOf(from) == Group::Float)
        out_.emit(Op::FloatToText, result.slot, value.slot, baseNumber(from));
    else
        out_.emit(from == ValueType::Currency ? Op::CurrencyToText : Op::VariantToText, result.slot, value.slot);
    return result;
}

/// Any value as it is, also an object.
Value Emitter::toVariant(const Value& value, std::optional<std::uint32_t> target) {
    const ValueType from = value.type.value;
    if (from == ValueType::Record && !value.type.isArray) return fail(basic::kTypeMismatch, {});
    const Group group = groupOf(from);
    if (group == Group::Variant && !value.type.isArray) return value;
    const Value result{{ValueType::Variant}, targetOr(target, ValueType::Variant)};
    if (value.type.isArray)
        out_.emit(Op::ArrayToVariant, result.slot, value.slot);
    else if (group == Group::Long)
        out_.emit(Op::LongToVariant, result.slot, value.slot, baseNumber(from));
    else if (group == Group::Float)
        out_.emit(Op::FloatToVariant, result.slot, value.slot, baseNumber(from));
    else if (group == Group::Currency)
        out_.emit(Op::CurrencyToVariant, result.slot, value.slot);
    else
        out_.emit(group == Group::Text ? Op::TextToVariant : Op::ObjectToVariant, result.slot, value.slot);
    if (group != Group::Object && !value.type.isArray) holdsNoObject(result.slot);
    return result;
}

/// An object, or what a Variant holds, as one of a class.
Value Emitter::checkClass(const Value& value, const Type& type) {
    Value object = value;
    if (groupOf(value.type.value) != Group::Object) {
        object = {{ValueType::Object}, temporary({ValueType::Object})};
        out_.emit(Op::VariantToObject, object.slot, toVariant(value, {}).slot);
    }
    if (type.value != ValueType::Object || type.id == 0 || object.type.id == type.id) return object;
    if (value.type.value == ValueType::Nothing && layout_.exactClass(type) == 0) return object;
    const Scope& scope = layout_.program().scope(type.id);
    if (!scope.source && scope.kind != ScopeKind::LibraryClass) return object;
    const Value result{type, temporary(type)};
    if (const auto number = layout_.classOf(type.id)) {
        out_.emit(layout_.isInterface(type.id) ? Op::CheckInterface : Op::CastObject, result.slot, object.slot);
        out_.extra(number);
    } else {
        out_.emit(Op::CheckLibraryClass, result.slot, object.slot);
        out_.extra(out_.module().text(std::string(spelling(scope.name))), FixKind::Text);
    }
    return result;
}

} // namespace qltoolkit
