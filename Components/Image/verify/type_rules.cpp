#include "Components/Image/verify/type_rules.h"

namespace image {

namespace {

bool hasValidId(const Tables& tables, SlotType type) {
    if (type.base == BaseType::Object) return type.id <= tables.code.classes.size();
    if (type.base == BaseType::Record) return type.id < tables.code.records.size();
    return type.id == 0;
}

} // namespace

bool isElement(const Tables& tables, SlotType type) {
    const bool isType = type.base > BaseType::None && type.base < BaseType::Half;
    return isType && hasValidId(tables, type) && type.form <= TypeForm::Array;
}

bool isVariable(const Tables& tables, SlotType type, bool mayRefer) {
    if (type.form > TypeForm::Array && !mayRefer) return false;
    if (!isElement(tables, {type.base, TypeForm::Value, type.id})) return false;
    return type.form != TypeForm::Value || slotBase(type.base) == type.base;
}

bool isParameter(const Tables& tables, SlotType type) {
    return isVariable(tables, type, true) && (type.form != TypeForm::Value || type.base != BaseType::Record);
}

bool isResult(const Tables& tables, SlotType type) {
    return type == SlotType{} || (isParameter(tables, type) && type.form <= TypeForm::Array);
}

} // namespace image
