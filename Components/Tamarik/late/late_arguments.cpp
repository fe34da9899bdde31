#include "Components/Tamarik/late/late_arguments.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_text.h"
#include "Components/Tamarik/vm/class_objects.h"
#include "Components/Tamarik/vm/slot_values.h"
#include "Components/Tamarik/vm/slot_variants.h"
#include <algorithm>
#include <bit>
#include <utility>

namespace tamarik {

namespace {

using image::BaseType;
using image::SlotType;
using image::TypeForm;

SlotType valueType(SlotType type) {
    if (type.form == TypeForm::Reference) return {type.base, TypeForm::Value, type.id};
    if (type.form == TypeForm::ArrayReference) return {type.base, TypeForm::Array, type.id};
    return type;
}

bool isReference(SlotType type) { return type.form == TypeForm::Reference || type.form == TypeForm::ArrayReference; }

Variant valueOf(Execution& m, const image::DefaultValue& value) {
    switch (slotBase(value.type)) {
    case BaseType::Long: return ofNumber(static_cast<std::int32_t>(value.bits), kindOf(value.type));
    case BaseType::Double: return ofFraction(std::bit_cast<double>(value.bits), kindOf(value.type));
    case BaseType::Currency: return ofCurrency(static_cast<std::int64_t>(value.bits));
    case BaseType::Text: return ofText(m.constantText(static_cast<std::uint32_t>(value.bits)));
    case BaseType::Variant: return ofKind(static_cast<VariantKind>(value.bits));
    default: return missing();
    }
}

SlotType withBase(SlotType type, BaseType declared) {
    return declared == BaseType::None ? type : SlotType{declared, type.form, type.id};
}

} // namespace

Variant* valueNeeded(Variant& argument, SlotType type) {
    const SlotType value = valueType(type);
    const bool takesObject = value.base == BaseType::Object || value.base == BaseType::Variant;
    return argument.kind == kObject && !takesObject && value.form == TypeForm::Value ? &argument : nullptr;
}

void storeInSlot(Execution& m, Slot* slot, SlotType type, BaseType declared, const Variant& value) {
    if (type.form == TypeForm::Array) {
        if (!value.isArray() || !value.array || !hasElementsOf(*value.array, type))
            throw basic::RuntimeError(basic::kTypeMismatch);
        retain(value.array);
        return setArray(m.heap, *slot, value.array);
    }
    const BaseType base = slotBase(declared) == type.base ? declared : type.base;
    switch (type.base) {
    case BaseType::Long: slot->number = longOf(value, base); break;
    case BaseType::Double: slot->fraction = fractionOf(value, base); break;
    case BaseType::Currency: slot->currency = currencyOf(value); break;
    case BaseType::Text: setText(m.heap, *slot, textOf(m.heap, value)); break;
    case BaseType::Variant: assign(m.heap, variantAt(slot), value); break;
    case BaseType::Object:
        if (value.kind != kObject) throw basic::RuntimeError(basic::kObjectRequired);
        if (type.id != 0) requireExactClass(value.object, type.id);
        retain(value.object);
        setObject(m.heap, *slot, value.object);
        break;
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

Variant copyOfSlot(Heap& heap, const Slot* slot, SlotType type, BaseType declared) {
    const Variant shared = variantOfSlot(slot, type.form == TypeForm::Value ? withBase(type, declared) : type);
    return copyOf(heap, shared);
}

Variant* LateArguments::firstWithoutValue(const LoadedProcedure& procedure, std::span<Variant> arguments) const {
    const auto& variables = procedure.info->variables;
    for (std::size_t i = 0; i < arguments.size() && i + 1 < procedure.info->parameters; ++i)
        if (Variant* const needed = valueNeeded(arguments[i], variables[i + 1].type)) return needed;
    return nullptr;
}

void LateArguments::prepareOne(Execution& m, Argument& argument, const Variant& value) {
    const SlotType type = valueType(argument.type);
    if (value.isMissing()) { // and has no default
        if (type.base == BaseType::Variant) variantAt(argument.value) = missing();
        return;
    }
    argument.isInVariable =
        argument.variable && argument.type.form == TypeForm::Reference && type.base == BaseType::Variant;
    if (!argument.isInVariable) storeInSlot(m, argument.value, type, argument.declared, value);
}

void LateArguments::packRest(Execution& m, Argument& argument, std::span<const Variant> rest,
                             std::span<Slot* const> variables) {
    const SlotType type = valueType(argument.type);
    if (type.form != TypeForm::Array || type.base != BaseType::Variant) throw basic::RuntimeError(basic::kTypeMismatch);
    const Bounds bounds{0, static_cast<std::int32_t>(rest.size()) - 1};
    argument.value[0].array = makeArray(m.heap, {{BaseType::Variant}}, {&bounds, 1});
    auto* const elements = argument.value[0].array->as<Slot>();
    for (std::size_t i = 0; i < rest.size(); ++i) {
        variantAt(elements + 2 * i) = copyOf(m.heap, rest[i]);
        variantAt(elements + 2 * i).flags |= Variant::kUnassigned;
    }
    retain(rest_ = argument.value[0].array);
    restVariables_.assign(variables.begin(), variables.end());
}

void LateArguments::prepare(Execution& m, const LoadedProcedure& procedure, const image::ClassMember& member,
                            std::span<const Variant> arguments, std::span<Slot* const> variables) {
    const std::size_t all = procedure.info->parameters;
    const bool writesRecord = member.result == BaseType::Record && procedure.result == ValueKind::None;
    if (writesRecord) throw basic::RuntimeError(basic::kTypeMismatch); // a record has no place in a Variant
    if (all == 0 || (all == 1 && member.hasParamArray)) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    const std::size_t count = all - 1, simple = count - (member.hasParamArray ? 1 : 0);
    if (arguments.size() > simple && !member.hasParamArray) throw basic::RuntimeError(basic::kWrongNumberOfArguments);
    arguments_.assign(count, {});
    for (std::size_t i = 0; i < count; ++i) {
        Argument& argument = arguments_[i];
        argument.type = procedure.info->variables[i + 1].type;
        const image::MemberParameter& declared = member.parameters[i];
        argument.declared = declared.type;
        if (i >= simple) {
            packRest(m, argument, arguments.subspan(std::min(simple, arguments.size())),
                     variables.subspan(std::min(simple, variables.size())));
            continue;
        }
        const bool isGiven = i < arguments.size() && !arguments[i].isMissing();
        if (!isGiven && !declared.isOptional) throw basic::RuntimeError(basic::kArgumentNotOptional);
        argument.variable = isGiven && i < variables.size() ? variables[i] : nullptr;
        prepareOne(m, argument, isGiven ? arguments[i] : valueOf(m, declared.byDefault));
    }
}

void LateArguments::moveTo(Heap& heap, Slot* target) {
    for (Argument& argument : arguments_) {
        if (isReference(argument.type)) {
            setReference(heap, target, argument.isInVariable ? argument.variable : argument.value, nullptr);
        } else {
            std::swap(target[0].bits, argument.value[0].bits);
            if (slotsOf(argument.type) == 2) std::swap(target[1].bits, argument.value[1].bits);
        }
        target += slotsOf(argument.type);
    }
}

void LateArguments::writeBack(Heap& heap) {
    for (const Argument& argument : arguments_) {
        if (argument.type.form != TypeForm::Reference || argument.isInVariable || !argument.variable) continue;
        const Variant value = copyOfSlot(heap, argument.value, valueType(argument.type), argument.declared);
        setVariant(heap, argument.variable, value);
    }
    const std::size_t count = rest_ ? std::min<std::size_t>(rest_->size, restVariables_.size()) : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const Variant& element = variantAt(rest_->as<Slot>() + 2 * i);
        const bool isAssigned = (element.flags & Variant::kUnassigned) == 0;
        if (isAssigned && restVariables_[i]) setVariant(heap, restVariables_[i], copyOf(heap, element));
    }
}

void LateArguments::release(Heap& heap) {
    for (Argument& argument : arguments_) {
        const SlotType type = valueType(argument.type);
        if (image::isManaged(type)) releaseSlot(heap, argument.value, managedKind(type));
    }
    arguments_.clear();
    tamarik::release(heap, std::exchange(rest_, nullptr));
}

} // namespace tamarik
