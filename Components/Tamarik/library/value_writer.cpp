#include "Components/Tamarik/library/file_function.h"
#include "Components/Tamarik/library/stored_values.h"
#include <bit>
#include <limits>
#include <type_traits>

namespace tamarik {

using image::BaseType;
using image::TypeForm;

template <class Number>
void ValueWriter::number(Number value) {
    auto bits = static_cast<std::make_unsigned_t<Number>>(value);
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        bytes_ += static_cast<char>(bits & 0xFF);
        if constexpr (sizeof(Number) > 1) bits = static_cast<std::make_unsigned_t<Number>>(bits >> 8);
    }
}

void ValueWriter::write(const StoredPlace& place) {
    if (place.type.form == TypeForm::Array) return array(place.slot->array, false);
    const std::int32_t whole = place.isByteElement ? *reinterpret_cast<const std::uint8_t*>(place.slot) : 0;
    switch (place.type.base) {
    case BaseType::Byte: return number(static_cast<std::uint8_t>(place.isByteElement ? whole : place.whole()));
    case BaseType::Boolean:
    case BaseType::Integer: return number(static_cast<std::int16_t>(place.whole()));
    case BaseType::Long: return number(place.whole());
    case BaseType::Single: return number(std::bit_cast<std::int32_t>(static_cast<float>(place.slot->fraction)));
    case BaseType::Double:
    case BaseType::Date:
    case BaseType::Currency: return number(place.slot->currency);
    case BaseType::Text: return text(unitsOf(place.slot->text), place.fixedLength, hasLengths_);
    case BaseType::Variant: return variant(variantAt(place.slot));
    case BaseType::Record: return record(place.type.id, place.slot);
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

void ValueWriter::text(std::u16string_view units, std::uint32_t fixedLength, bool hasLength) {
    std::string encodedText = encoded(session_, units);
    if (fixedLength != 0) {
        encodedText.resize(fixedLength, ' ');
    } else if (hasLength) {
        if (encodedText.size() > std::numeric_limits<std::uint16_t>::max())
            throw basic::RuntimeError(basic::kBadRecordLength);
        number(static_cast<std::uint16_t>(encodedText.size()));
    }
    session_.charge(encodedText.size());
    bytes_ += encodedText;
}

void ValueWriter::variant(const Variant& v) {
    number(v.kind);
    switch (v.kind) {
    case kEmpty:
    case kNull: return;
    case kByte: return number(static_cast<std::uint8_t>(v.number));
    case kBoolean:
    case kInteger: return number(static_cast<std::int16_t>(v.number));
    case kLong:
    case kError: return number(v.number);
    case kSingle: return number(std::bit_cast<std::int32_t>(static_cast<float>(v.fraction)));
    case kDouble:
    case kDate:
    case kCurrency: return number(v.currency);
    case kString: return text(unitsOf(v.text), 0, true);
    case kDecimal:
        number(v.scale);
        number(static_cast<std::uint8_t>(v.flags & Variant::kNegative));
        number(v.high);
        return number(v.low);
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

void ValueWriter::record(std::uint32_t id, Slot* slots) {
    const bool hadLengths = std::exchange(hasLengths_, true);
    forEachField(code_, id, slots, [&](const image::RecordField& field, Slot* slot) {
        if (field.type.form == TypeForm::Array)
            array(slot->array, field.array == image::kNone);
        else
            write({field.type, field.fixedLength, slot});
    });
    hasLengths_ = hadLengths;
}

/// Dynamic arrays of records have their bounds in front.
void ValueWriter::array(const ArrayBlock* array, bool hasBounds) {
    if (hasBounds) number(static_cast<std::uint16_t>(array ? array->bounds.size() : 0));
    if (!array) return;
    if (hasBounds)
        for (const Bounds& dimension : array->bounds) {
            number(static_cast<std::uint32_t>(dimension.upper) - static_cast<std::uint32_t>(dimension.lower) + 1);
            number(dimension.lower);
        }
    session_.charge(std::uint64_t{array->size} * array->elementBytes);
    for (std::uint32_t i = 0; i < array->size; ++i) write(elementPlace(*array, i));
}

} // namespace tamarik
