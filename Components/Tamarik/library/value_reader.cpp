#include "Components/Tamarik/library/file_function.h"
#include "Components/Tamarik/library/stored_values.h"
#include "Components/Tamarik/numbers/decimal96.h"
#include "Components/Tamarik/values/rounding.h"
#include <bit>
#include <type_traits>

namespace tamarik {

using image::BaseType;
using image::TypeForm;

std::string ValueReader::take(std::uint64_t count) {
    if (count > limit_) throw basic::RuntimeError(basic::kBadRecordLength);
    limit_ -= count;
    session_.charge(count);
    std::string bytes = file_.read(static_cast<std::size_t>(count));
    wasShort_ = wasShort_ || bytes.size() < count;
    return bytes;
}

template <class Number>
Number ValueReader::number() {
    const std::string bytes = take(sizeof(Number));
    std::uint64_t bits = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) bits = bits << 8 | static_cast<unsigned char>(bytes[i]);
    return static_cast<Number>(bits);
}

/// A file may hold what is not a number.
double ValueReader::fraction(BaseType type) {
    const double value = type == BaseType::Single ? double{std::bit_cast<float>(number<std::uint32_t>())}
                                                  : std::bit_cast<double>(number<std::uint64_t>());
    if (!isFinite(value)) throw basic::RuntimeError(basic::kOverflow);
    return type == BaseType::Date ? toDate(value) : value;
}

void ValueReader::read(const StoredPlace& place) {
    if (place.type.form == TypeForm::Array) return array(*place.slot, place.type, false);
    switch (place.type.base) {
    case BaseType::Byte: {
        const auto byte = number<std::uint8_t>();
        if (place.isByteElement)
            *reinterpret_cast<std::uint8_t*>(place.slot) = byte;
        else
            place.whole() = byte;
        return;
    }
    case BaseType::Boolean: place.whole() = number<std::int16_t>() != 0 ? -1 : 0; return;
    case BaseType::Integer: place.whole() = number<std::int16_t>(); return;
    case BaseType::Long: place.whole() = number<std::int32_t>(); return;
    case BaseType::Single:
    case BaseType::Double:
    case BaseType::Date: place.slot->fraction = fraction(place.type.base); return;
    case BaseType::Currency: place.slot->currency = number<std::int64_t>(); return;
    case BaseType::Text: return text(place, hasLengths_);
    case BaseType::Variant: {
        const Variant value = variant(), old = variantAt(place.slot);
        variantAt(place.slot) = value;
        return release(session_.heap, old);
    }
    case BaseType::Record: return record(place.type.id, place.slot);
    default: throw basic::RuntimeError(basic::kTypeMismatch);
    }
}

/// A text without a length in front is as long as the present one.
void ValueReader::text(const StoredPlace& place, bool hasLength) {
    TextBlock* const old = place.slot->text;
    const std::uint64_t length = place.fixedLength != 0 ? place.fixedLength
                                 : hasLength            ? number<std::uint16_t>()
                                                        : unitsOf(old).size();
    const HeldText found(session_.heap, decoded(session_, take(length)));
    place.slot->text = place.fixedLength != 0 ? fixLength(session_.heap, found, place.fixedLength)
                                              : retain(static_cast<TextBlock*>(found));
    release(session_.heap, old);
}

Variant ValueReader::variant() {
    const auto kind = static_cast<VariantKind>(number<std::uint16_t>());
    switch (kind) {
    case kEmpty:
    case kNull: return ofKind(kind);
    case kByte: return ofNumber(number<std::uint8_t>(), kind);
    case kBoolean: return ofBoolean(number<std::int16_t>() != 0);
    case kInteger: return ofNumber(number<std::int16_t>(), kind);
    case kLong:
    case kError: return ofNumber(number<std::int32_t>(), kind);
    case kSingle: return ofFraction(fraction(BaseType::Single), kind);
    case kDouble: return ofFraction(fraction(BaseType::Double), kind);
    case kDate: return ofFraction(fraction(BaseType::Date), kind);
    case kCurrency: return ofCurrency(number<std::int64_t>());
    case kString: {
        const auto length = number<std::uint16_t>();
        return ofText(decoded(session_, take(length)));
    }
    case kDecimal: {
        Variant v = ofKind(kind);
        v.scale = number<std::uint8_t>();
        v.flags = number<std::uint8_t>() & Variant::kNegative;
        v.high = number<std::uint32_t>();
        v.low = number<std::uint64_t>();
        if (v.scale > kMostDecimals) throw basic::RuntimeError(basic::kOverflow);
        return v;
    }
    default: throw basic::RuntimeError(basic::kTypeNotSupported);
    }
}

void ValueReader::record(std::uint32_t id, Slot* slots) {
    const bool hadLengths = std::exchange(hasLengths_, true);
    forEachField(code_, id, slots, [&](const image::RecordField& field, Slot* slot) {
        if (field.type.form == TypeForm::Array)
            array(*slot, field.type, field.array == image::kNone);
        else
            read({field.type, field.fixedLength, slot});
    });
    hasLengths_ = hadLengths;
}

void ValueReader::array(Slot& slot, image::SlotType type, bool hasBounds) {
    if (hasBounds) {
        std::vector<Bounds> bounds(number<std::uint16_t>());
        if (bounds.size() > image::kMostDimensions) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        for (Bounds& dimension : bounds) {
            const std::int64_t count = number<std::uint32_t>();
            dimension.lower = number<std::int32_t>();
            const std::int64_t upper = dimension.lower + count - 1;
            if (upper != static_cast<std::int32_t>(upper)) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
            dimension.upper = static_cast<std::int32_t>(upper);
        }
        if (!slot.array && !bounds.empty()) {
            if (type.base == BaseType::Record) throw basic::RuntimeError(basic::kTypeMismatch);
            slot.array = makeArray(session_.heap, {{type.base}});
        }
        if (slot.array && bounds.empty()) erase(session_.heap, *slot.array);
        if (slot.array && !bounds.empty()) redimension(session_.heap, *slot.array, bounds, false);
    }
    if (!slot.array) return;
    for (std::uint32_t i = 0; i < slot.array->size; ++i) read(elementPlace(*slot.array, i));
}

} // namespace tamarik
