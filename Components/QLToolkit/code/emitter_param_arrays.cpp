// The arguments of a ParamArray.
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::Op;

/// The arguments from `first` on as an array of Variants. `refers`: assignments to elements reach the caller's variables.
PassedArgument Emitter::paramArray(const Span<Argument>& given, std::uint32_t first, std::int32_t base, bool refers) {
    const Type type{ValueType::Variant, true};
    PassedArgument made{0, {}, {type, temporary(type)}};
    const Value& list = made.temporary;
    const std::uint32_t count = given.size() > first ? given.size() - first : 0;
    image::ArrayShape shape{{image::BaseType::Variant, image::TypeForm::Value, 0},
                            0,
                            {{base, base + static_cast<std::int32_t>(count) - 1}}};
    out_.emit(Op::NewArray, list.slot);
    out_.extra(static_cast<std::uint32_t>(out_.module().arrays.size()), FixKind::Array);
    out_.module().arrays.push_back(std::move(shape));
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto& each = given[first + i];
        if (refers && each.value && !each.byVal && isVariable(*each.value)) {
            passElement(made, i, *each.value);
            continue;
        }
        const auto mark = slots_.mark();
        const Value element = each.value ? variantOf(*each.value) : missing();
        const auto index = longConstant(std::int64_t{i} + base, {});
        out_.emit(Op::StoreVariantAt, element.slot, list.slot, index.slot);
        clearObjects(mark);
        slots_.releaseTo(mark);
    }
    if (made.elements.empty()) {
        made.word = passed(list);
        return made;
    }
    // The procedure releases its array, but this one is read after the call.
    const Value own{type, temporary(type)};
    out_.emit(Op::ShareArray, own.slot, list.slot);
    made.word = passed(own);
    return made;
}

/// Arrays are shared with the element. What else is assigned to it is stored in the variable after the call.
void Emitter::passElement(PassedArgument& made, std::uint32_t index, const Expr& given) {
    const Value& list = made.temporary;
    Place variable = place(given);
    if (variable.kind == PlaceKind::Element) { // the index may change during the call
        const auto kept = temporary({ValueType::Long});
        out_.emit(Op::Move, kept, variable.index);
        variable.index = kept;
    }
    NativeCall call;
    const Value position = longConstant(index, {});
    passReference(call, resultPlace(list));
    pass(call, position);
    const bool mayShare = variable.type.isArray || variable.type.value == ValueType::Variant;
    if (mayShare && isAddressable(variable)) {
        passReference(call, variable);
    } else {
        const Value element = toVariant(load(variable), {});
        out_.emit(Op::StoreVariantAt, element.slot, list.slot, position.slot);
    }
    (void)finish(call, "ParamArray.Pass", {ValueType::None});
    if (!variable.type.isArray && variable.kind <= PlaceKind::VariantElement)
        made.elements.emplace_back(index, variable);
}

void Emitter::storeElementBack(const Value& list, std::uint32_t index, const Place& variable) {
    const Label unassigned = out_.label();
    const Value position = longConstant(index, {});
    NativeCall call;
    passReference(call, resultPlace(list));
    pass(call, position);
    out_.jump(Op::JumpFalse, unassigned, finish(call, "ParamArray.IsAssigned", {ValueType::Long}).slot);
    const Value element{{ValueType::Variant}, temporary({ValueType::Variant})};
    out_.emit(Op::LoadVariantAt, element.slot, list.slot, position.slot);
    if (variable.type.value == ValueType::Object)
        setObject(variable, element);
    else
        assignValue(variable, element);
    out_.place(unassigned);
}

} // namespace qltoolkit
