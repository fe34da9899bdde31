// Functions of the language's library: some are instructions, the others functions of the runtime.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/code/library_signature.h"
#include "Components/QLToolkit/code/value_kinds.h"
#include "Components/QLToolkit/names/record_size.h"
#include <algorithm>

namespace qltoolkit {

using image::Op;

namespace {

/// Whether the result may be or hold an object: one that the function makes, or one that it is given.
bool mayReturnObject(const LibraryFunction& function, const Callable& callable) {
    return callable.result.value == ValueType::Object || function.takesObjects ||
           std::any_of(callable.parameters.begin(), callable.parameters.end(), [](const ParameterInfo& each) {
               return each.paramArray || each.type.value == ValueType::Object;
           });
}

} // namespace

void Emitter::pass(NativeCall& call, const Value& value) {
    call.types.push_back(layout_.slotTypeOf(value.type));
    call.list.push_back({passed(value), {}, {}});
}

void Emitter::passReference(NativeCall& call, const Place& place) {
    const auto type = layout_.referenceTo(place.type);
    call.types.push_back(type);
    if (place.kind == PlaceKind::Slot)
        call.list.push_back({passedAddress(place.slot), {}, {}});
    else
        call.list.push_back({passed(reference(place), type), {}, {}});
}

Value Emitter::finish(NativeCall& call, const std::string& name, const Type& result) {
    const bool hasResult = result.value != ValueType::None;
    const image::SlotType type = hasResult ? layout_.slotTypeOf(result) : image::SlotType{};
    const Value made{result, hasResult ? temporary(result) : image::kNoSlot};
    out_.emit(Op::CallNative, made.slot, 0, static_cast<std::uint32_t>(call.list.size()));
    out_.extra(out_.module().import(name, type, call.types), FixKind::Import);
    words(call.list);
    return made;
}

Value Emitter::native(const std::string& name, const Type& result, const std::vector<Value>& values) {
    NativeCall call;
    for (const auto& each : values) pass(call, each);
    return finish(call, name, result);
}

/// Parameters of functions of the runtime are values, but for those to which they assign.
Value Emitter::libraryCall(const Entity& entity, const Span<Argument>& given, const std::string& prefix) {
    const LibraryFunction& function =
        prefix.empty() ? layout_.libraryFunction(entity.name) : LibraryFunctions::kOrdinary;
    if (!entity.onDevices && function.builtin != Builtin::CreateObject)
        return fail(basic::kActionNotSupported, entity.type);
    if (auto result = intrinsic(function, given)) return *result;
    if (function.builtin == Builtin::CallByName) return callByName(given);
    if (function.builtin == Builtin::VarPtr) return variableId(*given[0].value);
    NativeCall call;
    const Callable& callable = *entity.get;
    // Option Base counts for the array that Array makes.
    arguments(callable, given, call.list,
              function.builtin == Builtin::Array ? static_cast<std::int32_t>(module_.arrayBase) : 0);
    if (!function.takesObjects) takeDefaultValues(callable, given, call.list);
    for (const auto& parameter : callable.parameters) call.types.push_back(librarySlotType(parameter));
    Value made = finish(call, prefix + std::string(spelling(entity.name)), libraryResult(callable));
    storeBack(call.list);
    if (callable.result.value == ValueType::Object) made.type = callable.result;
    if (!mayReturnObject(function, callable)) holdsNoObject(made.slot);
    return made;
}

/// Functions of the runtime run no code, so objects among their arguments are replaced before the call.
void Emitter::takeDefaultValues(const Callable& callable, const Span<Argument>& given,
                                const std::vector<PassedArgument>& list) {
    const auto& parameters = callable.parameters;
    for (std::uint32_t i = 0; i < given.size(); ++i) {
        const std::size_t at = parameterOf(callable, given, i);
        if (at >= parameters.size() || parameters[at].paramArray || !given[i].value) continue;
        const Type natural = typeOfExpr(*given[i].value);
        const bool mayBeObject = natural.value == ValueType::Variant || natural.value == ValueType::Object;
        if (parameters[at].type.value != ValueType::Variant || !mayBeObject || natural.isArray) continue;
        const auto slot = image::slotOf(list[at].word);
        out_.emit(Op::VariantValue, slot, slot);
    }
}

/// VarPtr: a number for the variable itself, or for the temporary that an expression is.
Value Emitter::variableId(const Expr& given) {
    Place variable = isVariable(given) ? place(given) : resultPlace(value(given));
    if (variable.type.isArray)
        variable = resultPlace(toVariant(load(variable), {}));
    else if (variable.kind != PlaceKind::Slot && !isAddressable(variable))
        variable = resultPlace(load(variable));
    NativeCall call;
    passReference(call, variable);
    return finish(call, "VarPtr", {ValueType::Long});
}

/// What an instruction does, by the declared types of the arguments.
std::optional<Value> Emitter::intrinsic(const LibraryFunction& function, const Span<Argument>& given) {
    if (function.builtin == Builtin::None || given.empty() || !given[0].value || given[0].name != Symbol::None)
        return std::nullopt;
    const Expr& first = *given[0].value;
    if (function.builtin == Builtin::LowerBound || function.builtin == Builtin::UpperBound)
        return boundOf(given, function.builtin == Builtin::UpperBound);
    if (given.size() != 1) return std::nullopt;
    switch (function.builtin) {
    case Builtin::Convert: return explicitConversion(first, function.type);
    case Builtin::Length: return lengthOf(first);
    case Builtin::LengthInBytes: return bytesOfRecord(first);
    case Builtin::Root: return squareRoot(first);
    case Builtin::Absolute:
    case Builtin::Int:
    case Builtin::Fix: return wholePart(function.builtin, first);
    default: return std::nullopt;
    }
}

std::optional<Value> Emitter::squareRoot(const Expr& expr) {
    if (typeOfExpr(expr).isArray) return std::nullopt;
    const Value number = value(expr, {ValueType::Double});
    const Value result{{ValueType::Double}, temporary({ValueType::Double})};
    out_.emit(Op::SqrFloat, result.slot, number.slot);
    return result;
}

/// Abs, Int and Fix of a number.
std::optional<Value> Emitter::wholePart(Builtin function, const Expr& expr) {
    const Type type = typeOfExpr(expr);
    if (type.isArray) return std::nullopt;
    const bool isAbs = function == Builtin::Absolute, isInt = function == Builtin::Int;
    if (isFloat(type.value) && type.value != ValueType::Date) {
        const Value number = value(expr);
        const Value result{type, temporary(type)};
        out_.emit(isAbs ? Op::AbsFloat : isInt ? Op::IntFloat : Op::FixFloat, result.slot, number.slot);
        return result;
    }
    if (!isWhole(type.value) || type.value == ValueType::Boolean) return std::nullopt;
    const Value number = value(expr);
    if (!isAbs) return number;
    const Value result{type, temporary(type)};
    out_.emit(Op::AbsLong, result.slot, number.slot);
    if (type.value == ValueType::Integer) out_.emit(Op::CheckInteger, result.slot, result.slot);
    return result;
}

Value Emitter::boundOf(const Span<Argument>& given, bool isUpper) {
    const Place variable = place(*given[0].value);
    const Value dimension =
        given.size() > 1 && given[1].value ? value(*given[1].value, {ValueType::Long}) : longConstant(1, {});
    Value list;
    if (variable.type.isArray) {
        list = array(variable);
    } else {
        list = {{ValueType::Variant, true}, temporary({ValueType::Variant, true})};
        const Value held = toVariant(load(variable), {});
        return native(isUpper ? "UBound" : "LBound", {ValueType::Long}, {held, dimension});
    }
    const Value result{{ValueType::Long}, temporary({ValueType::Long})};
    out_.emit(isUpper ? Op::UpperBound : Op::LowerBound, result.slot, list.slot, dimension.slot);
    return result;
}

/// Of a text its characters, of other types the bytes that the language gives them.
std::optional<Value> Emitter::lengthOf(const Expr& expr) {
    const Type type = typeOfExpr(expr);
    if (type.isArray) return std::nullopt;
    switch (type.value) {
    case ValueType::String:
    case ValueType::FixedString: {
        const Value text = value(expr);
        const Value result{{ValueType::Long}, temporary({ValueType::Long})};
        out_.emit(Op::LengthOfText, result.slot, text.slot);
        return result;
    }
    case ValueType::Byte: return longConstant(1, {});
    case ValueType::Boolean:
    case ValueType::Integer: return longConstant(2, {});
    case ValueType::Long:
    case ValueType::Single: return longConstant(4, {});
    case ValueType::Double:
    case ValueType::Currency:
    case ValueType::Date: return longConstant(8, {});
    case ValueType::Record:
        return longConstant(
            static_cast<std::int64_t>(RecordSizes{layout_.program(), 1}.of(layout_.program().scope(type.id)).bytes),
            {});
    default: return std::nullopt;
    }
}

/// The runtime counts the bytes of all other values.
std::optional<Value> Emitter::bytesOfRecord(const Expr& expr) {
    const Type type = typeOfExpr(expr);
    if (type.isArray || type.value != ValueType::Record) return std::nullopt;
    return longConstant(static_cast<std::int64_t>(layout_.bytesOfRecord(type.id)), {});
}

} // namespace qltoolkit
