#include "Components/Image/verify/table_checks.h"
#include "Components/Image/verify/type_rules.h"
#include <algorithm>

namespace image {

namespace {

std::string placeOf(const char* list, std::size_t i, const char* part, std::size_t j) {
    return std::string(list) + " " + std::to_string(i) + ", " + part + " " + std::to_string(j);
}

bool isFixedLength(SlotType element, std::uint32_t length) {
    if (length == 0) return true;
    return element.base == BaseType::Text && element.form == TypeForm::Value && length <= kLongestFixedText;
}

/// The bytes of an element at most.
std::int64_t bytesOf(const Tables& tables, SlotType element) {
    return 8 * static_cast<std::int64_t>(std::max<std::uint64_t>(tables.shapes.slotsOf(element), 1));
}

/// Whether an array needs no more bytes than it may.
bool isSmall(const Tables& tables, const ArrayShape& array) {
    auto bytes = bytesOf(tables, array.element);
    for (const auto& [lower, upper] : array.bounds) {
        const auto count = std::int64_t{upper} - lower + 1;
        if (count > 0 && bytes > kLargestArray / count) return false;
        bytes *= count;
    }
    return bytes <= kLargestArray;
}

void checkArray(const Tables& tables, std::size_t number) {
    const auto& array = tables.code.arrays[number];
    const auto refuseArray = [&](const std::string& text) { refuse("array " + std::to_string(number) + " " + text); };
    if (!isElement(tables, array.element) || array.element.form != TypeForm::Value)
        refuseArray("cannot have elements of type " + tables.describe(array.element));
    if (!isFixedLength(array.element, array.fixedLength))
        refuseArray("cannot have elements of the fixed length " + std::to_string(array.fixedLength));
    if (array.bounds.empty() || array.bounds.size() > kMostDimensions)
        refuseArray("has " + std::to_string(array.bounds.size()) + " dimensions");
    for (const auto& [lower, upper] : array.bounds)
        if (upper < lower && std::int64_t{upper} != std::int64_t{lower} - 1)
            refuseArray("has the bounds " + std::to_string(lower) + " To " + std::to_string(upper));
    if (!isSmall(tables, array)) refuseArray("is too large");
}

/// The shape of an array in a record is one of the same elements.
bool fits(const Tables& tables, const RecordField& field) {
    if (field.array == kNone) return true;
    if (field.type.form != TypeForm::Array || field.array >= tables.code.arrays.size()) return false;
    const auto element = tables.code.arrays[field.array].element;
    return element.base == field.type.base && element.id == field.type.id;
}

void checkField(const Tables& tables, std::size_t record, std::size_t number) {
    const auto& field = tables.code.records[record].fields[number];
    const auto refuseField = [&](const std::string& text) {
        refuse(placeOf("record", record, "field", number) + " " + text);
    };
    if (!isElement(tables, field.type)) refuseField("cannot be " + tables.describe(field.type));
    if (field.type.base == BaseType::Record && field.type.id >= record)
        refuseField("is " + tables.describe(field.type) + ", which is not one of the records before it");
    if (!isFixedLength(field.type, field.fixedLength))
        refuseField("cannot have the fixed length " + std::to_string(field.fixedLength));
    if (!fits(tables, field)) refuseField("cannot have the bounds of array " + std::to_string(field.array));
}

void checkRecords(const Tables& tables) {
    std::vector<int> depths;
    for (std::size_t i = 0; i < tables.code.records.size(); ++i) {
        const auto& fields = tables.code.records[i].fields;
        int depth = 1;
        for (std::size_t j = 0; j < fields.size(); ++j) {
            checkField(tables, i, j);
            if (fields[j].type.base == BaseType::Record) depth = std::max(depth, depths[fields[j].type.id] + 1);
        }
        depths.push_back(depth);
        const auto name = "record " + std::to_string(i);
        if (fields.empty()) refuse(name + " has no fields");
        if (depth > kDeepestRecord) refuse(name + " contains records that are nested too deeply");
        if (tables.shapes.slotsOf({BaseType::Record, TypeForm::Value, std::uint32_t(i)}) > kMostFieldSlots)
            refuse(name + " is too large");
    }
}

} // namespace

void checkTypes(const Tables& tables) {
    checkRecords(tables);
    for (std::size_t i = 0; i < tables.code.arrays.size(); ++i) checkArray(tables, i);
}

void checkGlobals(const Tables& tables) {
    const auto& globals = tables.code.globals;
    for (std::size_t i = 0; i < globals.size(); ++i)
        if (!isVariable(tables, globals[i].type, false))
            refuse("global variable " + std::to_string(i) + " cannot be " + tables.describe(globals[i].type));
    if (tables.globals.slots() > kMostGlobalSlots) refuse("the modules have too many variables");
}

} // namespace image
