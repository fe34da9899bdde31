// How arguments reach their parameters.
#include "Basic/case_folding.h"
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/names/library_constants.h"
#include "Components/QLToolkit/types/coercions.h"
#include <algorithm>

namespace qltoolkit {

using image::BaseType;
using image::Op;
using image::Pass;

namespace {

Pass passOf(image::SlotType type, bool takes) {
    if (type.form == image::TypeForm::Reference || type.form == image::TypeForm::ArrayReference)
        return takes ? Pass::TakePair : Pass::Ref;
    if (type.form == image::TypeForm::Array) return Pass::Take;
    switch (type.base) {
    case BaseType::Text: return takes ? Pass::Take : Pass::Text;
    case BaseType::Object: return takes ? Pass::Take : Pass::Object;
    case BaseType::Variant: return takes ? Pass::TakePair : Pass::Variant;
    default: return Pass::Number;
    }
}

bool isSameVariable(const Type& variable, const Type& parameter) {
    if (variable.value != parameter.value || variable.isArray != parameter.isArray) return false;
    return variable.value != ValueType::Object || variable.id == parameter.id;
}

} // namespace

/// A value in a slot of the parameter's type.
std::uint16_t Emitter::passed(const Value& value) { return passed(value, layout_.slotTypeOf(value.type)); }

std::uint16_t Emitter::passed(const Value& value, image::SlotType type) {
    const bool takes = value.isTemporary && isManaged(type);
    if (takes) holdsNoObject(value.slot);
    return image::encodeArgument(passOf(type, takes), value.slot);
}

/// The place of the parameter for an argument, which may be past the last one.
std::size_t Emitter::parameterOf(const Callable& callable, const Span<Argument>& given, std::uint32_t i) {
    if (given[i].name == Symbol::None) return i;
    const auto& parameters = callable.parameters;
    std::size_t at = 0;
    while (at < parameters.size() && parameters[at].name != given[i].name) ++at;
    return at;
}

/// Fills the parameters in their order; arguments are computed in the order in which they are written. `base` is the lower
/// bound of a ParamArray.
void Emitter::arguments(const Callable& callable, const Span<Argument>& given, std::vector<PassedArgument>& list,
                        std::int32_t base) {
    const auto& parameters = callable.parameters;
    const auto first = list.size();
    list.resize(first + parameters.size());
    std::vector<bool> filled(parameters.size());
    for (std::uint32_t i = 0; i < given.size(); ++i) {
        const std::size_t at = parameterOf(callable, given, i);
        if (at >= parameters.size() || parameters[at].paramArray || !given[i].value) {
            if (at < parameters.size() && parameters[at].paramArray) break;
            continue;
        }
        filled[at] = true;
        list[first + at] = argument(given[i].value, parameters[at], given[i].byVal);
    }
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (parameters[i].paramArray)
            list[first + i] = paramArray(given, static_cast<std::uint32_t>(i), base, callable.source != nullptr);
        else if (!filled[i])
            list[first + i] = omitted(callable, parameters[i]);
    }
}

PassedArgument Emitter::argument(const Expr* given, const ParameterInfo& parameter, bool byVal) {
    if (parameter.type.isArray) return passArray(*given, parameter.type);
    if (!parameter.byVal && !byVal) return referenceArgument(*given, parameter);
    const auto slot = temporary(parameter.type);
    const Type natural = typeOfExpr(*given);
    // An object goes to a Variant or Object as it is, without its default member.
    const bool keepsObject = parameter.type.value == ValueType::Variant &&
                             (natural.value == ValueType::Object || natural.value == ValueType::Nothing) &&
                             !natural.isArray;
    if (keepsObject)
        (void)moved(toVariant(value(*given), {}), slot);
    else
        into(*given, parameter.type, slot);
    return {passed({parameter.type, slot}), {}, {}};
}

/// Whether an argument names a variable, element or field that a procedure can assign to.
bool Emitter::isVariable(const Expr& given) const {
    const bool isName = given.kind == ExprKind::Name || given.kind == ExprKind::Member || given.kind == ExprKind::Index;
    return isName && given.note != 0 && noteOf(given).kind == OperandKind::Variable;
}

PassedArgument Emitter::referenceArgument(const Expr& given, const ParameterInfo& parameter) {
    if (parameter.type.value == ValueType::Record && typeOfExpr(given).value == ValueType::Record) {
        return {passed(recordOf(given), layout_.referenceTo(parameter.type)), {}, {}};
    }
    if (!isVariable(given)) {
        ParameterInfo byValue = parameter;
        byValue.byVal = true;
        PassedArgument made = argument(&given, byValue, true);
        made.word = passedAddress(image::slotOf(made.word));
        for (auto& each : slots_.inUse()) // the temporary keeps its value during the call
            if (each.slot == image::slotOf(made.word))
                each.mustClear = isManaged(each.type) && each.type.base != BaseType::Text;
        return made;
    }
    const Place variable = place(given);
    if (isAddressable(variable) && isSameVariable(variable.type, parameter.type) && !variable.isNew) {
        if (variable.kind == PlaceKind::Slot) return {passedAddress(variable.slot), {}, {}};
        const Value ref = reference(variable);
        return {passed(ref, layout_.referenceTo(variable.type)), {}, {}};
    }
    return copied(variable, load(variable), parameter);
}

/// A temporary in the place of a variable, which is stored back after the call.
PassedArgument Emitter::copied(const Place& variable, const Value& value, const ParameterInfo& parameter) {
    const auto slot = temporary(parameter.type);
    const bool isVariant = parameter.type.value == ValueType::Variant;
    Value given = value;
    given.isTemporary = given.isTemporary && variable.kind != PlaceKind::Slot;
    if (isVariant)
        (void)moved(toVariant(given, {}), slot);
    else
        (void)convert(given, parameter.type, slot);
    // A Variant parameter keeps the type of the variable.
    const bool keepsType =
        isVariant && variable.type.value != ValueType::Variant && variable.type.value != ValueType::Object;
    if (keepsType && !variable.type.isArray) out_.emit(Op::FixKind, slot);
    return {passedAddress(slot), variable, {parameter.type, slot}};
}

PassedArgument Emitter::passArray(const Expr& given, const Type& type) {
    const Place variable = place(given);
    if (!variable.type.isArray) { // a Variant that may hold such an array, as StrConv returns it
        const Value held = toVariant(load(variable), {});
        const Value array{type, temporary(type)};
        out_.emit(Op::VariantToArray, array.slot, held.slot);
        return {passedAddress(array.slot), {}, {}};
    }
    if (variable.kind == PlaceKind::Slot) return {passedAddress(variable.slot), {}, {}};
    if (!isAddressable(variable)) return {passedAddress(array(variable).slot), {}, {}};
    return {passed(reference(variable), layout_.referenceTo(variable.type)), {}, {}};
}

/// The value of a parameter that was left out.
Value Emitter::defaultOf(const Callable& callable, const ParameterInfo& parameter) {
    if (parameter.defaultValue) {
        // Names mean what they mean where the parameter is declared.
        const auto found = constants_.valueOf(*parameter.defaultValue, *callable.source->scope->source);
        if (found) return constant(*found, std::nullopt);
    }
    if (parameter.defaultText) {
        if (module_.comparesText && basic::equalNoCase(spelling(parameter.name), "Compare")) return longConstant(1, {});
        for (const auto* library : layout_.program().libraries)
            if (const auto* name = library->names.find(parameter.defaultName); name && name->constant)
                return constant(name->constant->value, std::nullopt);
        return constant(libraryConstant(*parameter.defaultText), std::nullopt);
    }
    if (parameter.type.value == ValueType::Variant) return missing();
    if (parameter.type.value == ValueType::Object) return nothing();
    const Value zero{parameter.type, temporary(parameter.type)};
    out_.emit(Op::Clear, zero.slot);
    return zero;
}

PassedArgument Emitter::omitted(const Callable& callable, const ParameterInfo& parameter) {
    const auto slot = temporary(parameter.type);
    (void)convert(defaultOf(callable, parameter), parameter.type, slot);
    if (parameter.byVal) return {passed({parameter.type, slot}), {}, {}};
    return {passedAddress(slot), {}, {}};
}

void Emitter::storeBack(const std::vector<PassedArgument>& list) {
    for (const auto& each : list) {
        for (const auto& [index, variable] : each.elements) storeElementBack(each.temporary, index, variable);
        if (!each.storedTo) continue;
        const Place& variable = *each.storedTo;
        if (variable.type.value == ValueType::Object && !variable.type.isArray)
            setObject(variable, each.temporary);
        else
            assignValue(variable, {each.temporary.type, each.temporary.slot, false});
    }
}

/// Follows the instruction of a call directly, as it also runs if the call fails.
void Emitter::storeBackAfterCall(const std::vector<PassedArgument>& list) {
    const bool copies = std::ranges::any_of(
        list, [](const PassedArgument& each) { return each.storedTo.has_value() || !each.elements.empty(); });
    if (copies) out_.emit(Op::StoreBack);
    storeBack(list);
    if (copies) out_.emit(Op::EndStoreBack);
}

void Emitter::words(const std::vector<PassedArgument>& list) {
    std::vector<std::uint16_t> halves;
    for (const auto& each : list) halves.push_back(each.word);
    out_.halves(halves);
}

} // namespace qltoolkit
