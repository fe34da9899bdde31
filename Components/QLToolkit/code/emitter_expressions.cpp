// Expressions: literals, names, and what is computed where.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::Op;

namespace {

constexpr int kEmpty = 0, kNull = 1, kMissing = 10;

/// Of expressions within one another; the stack must hold them.
constexpr int kMostNested = 400;

} // namespace

Value Emitter::longConstant(std::int64_t value, std::optional<std::uint32_t> target, ValueType type) {
    const Value result{{type}, targetOr(target, type)};
    if (value >= INT16_MIN && value <= INT16_MAX) {
        out_.emitWide(Op::LoadShort, result.slot, static_cast<std::uint32_t>(value));
    } else {
        out_.emit(Op::LoadLong, result.slot);
        out_.extra(static_cast<std::uint32_t>(value));
    }
    return result;
}

Value Emitter::floatConstant(double value, std::optional<std::uint32_t> target, ValueType type) {
    const Value result{{type}, targetOr(target, type)};
    const auto place = out_.number(value);
    if (place > 0xFFFF) isTooLarge_ = true;
    out_.emitWide(Op::LoadFloat, result.slot, place);
    return result;
}

Value Emitter::textConstant(const std::string& value, std::optional<std::uint32_t> target) {
    const Value result{{ValueType::String}, targetOr(target, ValueType::String)};
    out_.emit(Op::LoadText, result.slot);
    out_.extra(out_.module().text(value), FixKind::Text);
    return result;
}

Value Emitter::variantConstant(int kind, ValueType type, std::optional<std::uint32_t> target) {
    const Value result{{type}, targetOr(target, ValueType::Variant)};
    out_.emit(Op::LoadKind, result.slot, static_cast<std::uint32_t>(kind));
    for (auto& each : slots_.inUse())
        if (each.slot == result.slot) each.mustClear = false;
    return result;
}

Value Emitter::nothing() {
    const Value result{{ValueType::Nothing}, temporary({ValueType::Object})};
    out_.emit(Op::Clear, result.slot);
    holdsNoObject(result.slot);
    return result;
}

Value Emitter::constant(const ConstantValue& value, std::optional<std::uint32_t> target) {
    const ValueType type = qltoolkit::typeOf(value);
    switch (type) {
    case ValueType::Boolean: return longConstant(std::get<bool>(value) ? -1 : 0, target, type);
    case ValueType::Byte: return longConstant(std::get<basic::Byte>(value), target, type);
    case ValueType::Integer: return longConstant(std::get<basic::Integer>(value), target, type);
    case ValueType::Long: return longConstant(std::get<basic::Long>(value), target, type);
    case ValueType::Single: return floatConstant(std::get<basic::Single>(value), target, type);
    case ValueType::Double: return floatConstant(std::get<basic::Double>(value), target, type);
    case ValueType::Date: return floatConstant(std::get<basic::Date>(value).days, target, type);
    case ValueType::Currency: {
        const Value result{{type}, targetOr(target, type)};
        out_.emitWide(Op::LoadCurrency, result.slot,
                      out_.number(static_cast<std::uint64_t>(std::get<basic::Currency>(value).scaled)));
        return result;
    }
    case ValueType::String: return textConstant(std::get<std::string>(value), target);
    case ValueType::Nothing: return nothing();
    default: return variantConstant(type == ValueType::Null ? kNull : kEmpty, type, target);
    }
}

/// The value of an omitted argument.
Value Emitter::missing() { return variantConstant(kMissing, ValueType::Variant); }

Value Emitter::literal(const Expr& expr, std::optional<std::uint32_t> target) {
    switch (expr.kind) {
    case ExprKind::Integer: return longConstant(as<IntegerExpr>(expr).value, target, ValueType::Integer);
    case ExprKind::Long: return longConstant(as<IntegerExpr>(expr).value, target, ValueType::Long);
    case ExprKind::Currency: return constant(basic::Currency{as<IntegerExpr>(expr).value}, target);
    case ExprKind::Single: return floatConstant(as<FloatExpr>(expr).value, target, ValueType::Single);
    case ExprKind::Double: return floatConstant(as<FloatExpr>(expr).value, target, ValueType::Double);
    case ExprKind::Date: return floatConstant(as<FloatExpr>(expr).value, target, ValueType::Date);
    case ExprKind::String: return textConstant(stringValue(module_.tree.source, as<StringExpr>(expr)), target);
    case ExprKind::Boolean: return longConstant(expr.detail == 1 ? -1 : 0, target, ValueType::Boolean);
    case ExprKind::Empty: return variantConstant(kEmpty, ValueType::Empty, target);
    case ExprKind::Null: return variantConstant(kNull, ValueType::Null, target);
    default: return nothing();
    }
}

Value Emitter::value(const Expr& expr) { return valueIn(expr, std::nullopt); }

Value Emitter::value(const Expr& expr, const Type& want) {
    if (const auto known = constantAs(expr, want, std::nullopt)) return *known;
    return convert(value(expr), want);
}

/// A constant that can be converted while compiling.
std::optional<Value> Emitter::constantAs(const Expr& expr, const Type& want, std::optional<std::uint32_t> target) {
    if (want.isArray || want.value >= ValueType::FixedString || want.value == ValueType::Decimal) return std::nullopt;
    if (expr.kind == ExprKind::Integer || (expr.kind == ExprKind::Long && want.value != ValueType::Integer)) {
        const auto number = as<IntegerExpr>(expr).value;
        if (want.value == ValueType::Integer || want.value == ValueType::Long)
            return longConstant(number, target, want.value);
        if (want.value == ValueType::Double) return floatConstant(static_cast<double>(number), target);
    }
    std::optional<ConstantValue> known;
    if (expr.kind < ExprKind::Date || expr.kind == ExprKind::Boolean)
        known = constants_.valueOf(expr, module_);
    else if (expr.kind == ExprKind::Name && expr.note != 0 && noteOf(expr).entity && noteOf(expr).entity->constant)
        known = noteOf(expr).entity->constant->value;
    if (!known || qltoolkit::typeOf(*known) > ValueType::Date) return std::nullopt;
    const Folded folded = qltoolkit::convert(*known, want.value);
    if (folded.error != 0 || qltoolkit::typeOf(folded.value) != want.value) return std::nullopt;
    return constant(folded.value, target);
}

/// The place of a variable of the procedure, if it is a slot and needs no code to be read; null otherwise.
const Place* Emitter::ownSlot(const Expr& expr) const {
    if (expr.kind != ExprKind::Name) return nullptr;
    const Operand& note = noteOf(expr);
    if (note.kind != OperandKind::Variable || note.entity->owner || note.entity->kind != EntityKind::Variable)
        return nullptr;
    const Place& place = places_[note.entity->place];
    return place.kind == PlaceKind::Slot && !place.isNew ? &place : nullptr;
}

/// Computes an expression. `target` is a slot of its type that may receive it, or not.
Value Emitter::valueIn(const Expr& expr, std::optional<std::uint32_t> target) {
    if (expr.kind <= ExprKind::Nothing) return literal(expr, target);
    if (const auto* own = ownSlot(expr)) return {own->type, own->slot, false, own->entity};
    if (depth_ > kMostNested) {
        isTooLarge_ = true;
        return longConstant(0, std::nullopt);
    }
    ++depth_;
    const Value result = [&]() -> Value {
        switch (expr.kind) {
        case ExprKind::Me: return me();
        case ExprKind::Paren: {
            Value inner = valueIn(*as<UnaryExpr>(expr).operand, target);
            if (inner.type.value == ValueType::Object &&
                !inner.type.isArray) { // (x) is the value of its default member
                inner = toVariant(inner, {});
                out_.emit(Op::VariantValue, inner.slot, inner.slot);
            }
            return inner;
        }
        case ExprKind::Unary: return unary(as<UnaryExpr>(expr), target);
        case ExprKind::Binary: return binary(expr, target);
        case ExprKind::New: return newObject(noteOf(expr).type);
        case ExprKind::TypeOf: return typeOf(as<TypeOfExpr>(expr));
        case ExprKind::AddressOf:
            return fail(basic::kBadDllCallingConvention, {ValueType::Long}); // devices call no libraries
        case ExprKind::Coordinates: return fail(basic::kPropertyOrMethodNotSupported, {ValueType::Variant});
        default: return load(place(expr), target);
        }
    }();
    --depth_;
    return result;
}

/// Computes an expression into a slot of a type. The slot changes last.
void Emitter::into(const Expr& expr, const Type& want, std::uint32_t slot) {
    if (constantAs(expr, want, slot)) return;
    const Type natural = typeOfExpr(expr);
    const bool isPlain = natural.value == want.value && !natural.isArray && !want.isArray &&
                         want.value != ValueType::FixedString && want.value != ValueType::Record &&
                         layout_.slotTypeOf(natural) == layout_.slotTypeOf(want);
    const Value result = isPlain ? valueIn(expr, slot) : value(expr);
    if (result.slot != slot || !isPlain) (void)convert(result, want, slot);
}

Value Emitter::me() { return {{ValueType::Object, false, false, module_.scope->number}, me_, false}; }

Value Emitter::newObject(const Type& type) {
    if (type.value != ValueType::Object || type.id == 0) return fail(basic::kCantCreateObject, {});
    const Value result{type, temporary(type)};
    if (const auto number = layout_.classOf(type.id)) {
        out_.emit(Op::NewObject, result.slot);
        out_.extra(number);
    } else {
        out_.emit(Op::NewLibraryObject, result.slot);
        out_.extra(out_.module().text(std::string(spelling(layout_.program().scope(type.id).name))), FixKind::Text);
    }
    return result;
}

Value Emitter::typeOf(const TypeOfExpr& expr) {
    const Value object = checkClass(value(*expr.operand), {ValueType::Object});
    const Value result{{ValueType::Boolean}, temporary({ValueType::Boolean})};
    const Scope* wanted = noteOf(expr).inner;
    const auto number = wanted ? layout_.classOf(wanted->number) : 0;
    out_.emit(number ? Op::IsOfClass : Op::IsOfLibraryClass, result.slot, object.slot);
    if (number)
        out_.extra(number);
    else
        out_.extra(out_.module().text(std::string(wanted ? spelling(wanted->name) : "Object")), FixKind::Text);
    return result;
}

/// A Variant with an expression's value, also an object or a copy of an array.
Value Emitter::variantOf(const Expr& expr) { return toVariant(value(expr), {}); }

/// Code that raises an error in the place of a value that devices cannot give.
Value Emitter::fail(int error, const Type& type) {
    const auto number = longConstant(error, {});
    out_.emit(Op::RaiseError, number.slot);
    const bool isKnown = type.value != ValueType::Unknown && type.value != ValueType::None;
    const Type known = isKnown ? type : Type{ValueType::Variant, type.isArray};
    return {known, temporary(known)};
}

} // namespace qltoolkit
