#include "Components/QLToolkit/code/library_signature.h"
#include "Components/QLToolkit/code/program_layout.h"

namespace qltoolkit {

using image::SlotType;
using image::TypeForm;

SlotType librarySlotType(const Type& type) {
    const image::BaseType base = baseTypeOf(type.value);
    if (type.isArray) return {base, TypeForm::Array};
    return {image::slotBase(base)};
}

SlotType librarySlotType(const ParameterInfo& parameter) {
    if (parameter.paramArray) return {image::BaseType::Variant, TypeForm::Array};
    SlotType type = librarySlotType(parameter.type);
    if (parameter.type.isArray)
        type.form = TypeForm::ArrayReference;
    else if (!parameter.byVal)
        type.form = TypeForm::Reference;
    return type;
}

Type libraryResult(const Callable& callable) {
    Type result = callable.result;
    if (result.value == ValueType::Unknown) result = {};
    if (result.value == ValueType::Object) result.id = 0;
    return result;
}

} // namespace qltoolkit
