// ParamArray: how its elements refer to the caller's variables. The caller stores those back that were assigned.
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/natives/native_function.h"
#include "Components/Tamarik/values/array_block.h"

namespace tamarik {

using image::BaseType;
using image::SlotType;
using image::TypeForm;

namespace {

/// The element that a call names by its array and place; null if the procedure changed the bounds.
Variant* elementOf(const NativeCall& call) {
    const ArrayBlock* const list = call.arguments[0].pointer ? call.arguments[0].pointer->array : nullptr;
    const auto place = static_cast<std::uint32_t>(call.arguments[2].number);
    return list && place < list->size ? &variantAt(static_cast<Slot*>(list->at(place))) : nullptr;
}

void pass(NativeCall& call, const Variant& value) {
    Variant* const element = elementOf(call);
    if (!element) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    const Variant old = *element;
    *element = value;
    element->flags |= Variant::kUnassigned;
    release(call.session.heap, old);
}

Slot* variableOf(const NativeCall& call) {
    if (!call.arguments[3].pointer) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    return call.arguments[3].pointer;
}

/// An array is shared, so that its elements are the caller's.
void passVariant(NativeCall& call) { pass(call, sharedOf(variantAt(variableOf(call)))); }

void passArray(NativeCall& call) {
    ArrayBlock* const array = variableOf(call)->array;
    retain(array);
    pass(call, ofArray(array));
}

void passValue(NativeCall& call) {
    if (Variant* const element = elementOf(call)) element->flags |= Variant::kUnassigned;
}

void isAssigned(NativeCall& call) {
    const Variant* const element = elementOf(call);
    call.result[0].number = element && (element->flags & Variant::kUnassigned) == 0 ? -1 : 0;
}

} // namespace

void addParamArrayNatives(Natives& natives) {
    const SlotType list{BaseType::Variant, TypeForm::ArrayReference}, number{BaseType::Long};
    natives.add("ParamArray.IsAssigned", {number, {list, number}, &isAssigned});
    natives.add("ParamArray.Pass", {{}, {list, number}, &passValue});
    natives.addForm("ParamArray.Pass", {{}, {list, number, {BaseType::Variant, TypeForm::Reference}}, &passVariant});
    for (auto base = BaseType::Boolean; base <= BaseType::Record; base = static_cast<BaseType>(int(base) + 1)) {
        const std::uint32_t id = base == BaseType::Record || base == BaseType::Object ? kAnyId : 0;
        natives.addForm("ParamArray.Pass", {{}, {list, number, {base, TypeForm::ArrayReference, id}}, &passArray});
    }
}

} // namespace tamarik
