#include "Components/Tamarik/vm/variant_operations.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_text.h"
#include "Components/Tamarik/vm/array_operations.h"
#include "Components/Tamarik/vm/slot_values.h"
#include <array>

namespace tamarik {

namespace {

using image::BaseType;

ArrayBlock* requireArray(const Variant& v) {
    if (!v.isArray()) throw basic::RuntimeError(basic::kTypeMismatch);
    return v.array;
}

void requireElements(const ArrayBlock& array, image::SlotType target, bool mayBeOfAnyClass) {
    if (hasElementsOf(array, target)) return;
    const bool isWider = mayBeOfAnyClass && target.base == BaseType::Object && target.id == 0;
    if (!isWider || array.element.type.base != BaseType::Object) throw basic::RuntimeError(basic::kTypeMismatch);
}

std::uint32_t placeIn(Execution& m, const ArrayBlock* array, const std::uint32_t* words, std::uint32_t count) {
    std::array<std::int32_t, 256> indexes;
    for (std::uint32_t i = 0; i < count; ++i)
        indexes[i] = longOf(variantAt(m.frame->base + halfAt(words, i)), BaseType::Long);
    return placeOf(array, {indexes.data(), count});
}

} // namespace

void arrayToVariant(Execution& m, std::uint32_t target, std::uint32_t source) {
    Slot* const base = m.frame->base;
    const image::SlotType type = m.frame->procedure->types[source];
    const ArrayBlock* const array = base[source].array;
    ArrayBlock* const copy = array ? copyOf(m.heap, *array) : makeArray(m.heap, m.program->elementOf(type));
    setVariant(m.heap, base + target, ofArray(copy));
}

void variantToArray(Execution& m, std::uint32_t target, std::uint32_t source) {
    const Variant& v = variantAt(m.frame->base + source);
    // An array of Bytes takes the bytes of a text.
    if (v.kind == kString) return bytesOfText(m, target, v.text);
    const ArrayBlock* const array = requireArray(v);
    const image::SlotType type = m.frame->procedure->types[target];
    if (array) requireElements(*array, type, true);
    assignArray(m, target, array);
    // What was an array of one class takes objects of all classes from now on.
    if (array) m.frame->base[target].array->element.type.id = type.id;
}

void shareVariantArray(Execution& m, std::uint32_t target, std::uint32_t source) {
    ArrayBlock* const array = requireArray(variantAt(m.frame->base + source));
    if (array) requireElements(*array, m.frame->procedure->types[target], false);
    retain(array);
    setArray(m.heap, m.frame->base[target], array);
}

void variantElement(Execution& m, const std::uint32_t* ip, const Variant& v) {
    const image::Word word(*ip);
    const ArrayBlock* const array = requireArray(v);
    const std::uint32_t place = placeIn(m, array, ip + 1, word.c);
    setVariant(m.heap, m.frame->base + word.a, elementAt(m.heap, *array, place));
}

void storeElement(Heap& heap, ArrayBlock& array, std::uint32_t place, const Variant& value) {
    Slot* const slot = static_cast<Slot*>(array.at(place));
    switch (const BaseType base = array.element.type.base) {
    case BaseType::Byte: array.as<std::uint8_t>()[place] = static_cast<std::uint8_t>(longOf(value, base)); break;
    case BaseType::Boolean:
    case BaseType::Integer:
    case BaseType::Long: array.as<std::int32_t>()[place] = longOf(value, base); break;
    case BaseType::Single:
    case BaseType::Double:
    case BaseType::Date: slot->fraction = fractionOf(value, base); break;
    case BaseType::Currency: slot->currency = currencyOf(value); break;
    case BaseType::Variant: assign(heap, variantAt(slot), value); break;
    case BaseType::Object: {
        const Variant object = converted(heap, value, kObject);
        const std::uint32_t wanted = array.element.type.id;
        if (wanted != 0 && object.object && object.object->classNumber != wanted) {
            release(heap, object);
            throw basic::RuntimeError(basic::kTypeMismatch);
        }
        setObject(heap, *slot, object.object);
        break;
    }
    case BaseType::Text: {
        TextBlock* text = textOf(heap, value);
        if (array.element.fixedLength != 0) {
            TextBlock* const fixed = fixLength(heap, text, array.element.fixedLength);
            release(heap, text);
            text = fixed;
        }
        setText(heap, *slot, text);
        break;
    }
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

void storeVariantElement(Execution& m, const std::uint32_t* ip, const Variant& v) {
    const image::Word word(*ip);
    ArrayBlock* const array = requireArray(v);
    storeElement(m.heap, *array, placeIn(m, array, ip + 1, word.c), variantAt(m.frame->base + word.a));
}

namespace {

std::uint32_t placeWith(const ArrayBlock* array, std::span<const Variant> indexes) {
    std::vector<std::int32_t> numbers;
    for (const Variant& index : indexes) numbers.push_back(longOf(index, BaseType::Long));
    return placeOf(array, numbers);
}

} // namespace

Variant elementWith(Heap& heap, const Variant& v, std::span<const Variant> indexes) {
    const ArrayBlock* const array = requireArray(v);
    return elementAt(heap, *array, placeWith(array, indexes));
}

void storeElementWith(Heap& heap, const Variant& v, std::span<const Variant> indexes, const Variant& value) {
    ArrayBlock* const array = requireArray(v);
    storeElement(heap, *array, placeWith(array, indexes), value);
}

void redimensionVariant(Execution& m, const std::uint32_t* ip) {
    const image::Word word(*ip);
    Slot* const base = m.frame->base;
    const image::SlotType type{static_cast<BaseType>(ip[1] & 0xFF), image::TypeForm::Array, ip[1] >> 16};
    const std::vector<Bounds> bounds = boundsIn(base, ip + 2, word.c);
    Variant& v = variantAt(base + word.a);
    if (v.isArray()) {
        if (v.array) requireUnlocked(*v.array);
        if (word.b != 0 && v.array) return redimension(m.heap, *v.array, bounds, true);
    } else if (word.b != 0 && v.kind != kEmpty) {
        throw basic::RuntimeError(basic::kTypeMismatch);
    }
    setVariant(m.heap, base + word.a, ofArray(makeArray(m.heap, m.program->elementOf(type), bounds)));
}

void eraseVariant(Execution& m, std::uint32_t slot) {
    if (ArrayBlock* const array = requireArray(variantAt(m.frame->base + slot))) erase(m.heap, *array);
}

} // namespace tamarik
