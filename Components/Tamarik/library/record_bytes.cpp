// LSet between variables of two Types: the bytes that the values have in memory.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/library/stored_values.h"
#include "Components/Tamarik/values/array_block.h"
#include "Components/Tamarik/values/rounding.h"
#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace tamarik {

using image::BaseType;
using image::SlotType;
using image::TypeForm;

namespace {

/// The bytes of a record's values, in their order. In memory a value begins at a multiple of its size, but of 4 at most.
class RecordBytes {
public:
    RecordBytes(Session& session, const image::CodeImage& code) : session_(session), code_(code) {}

    /// Errors 13 for what has no place in bytes: texts without a fixed length, objects, Variants and dynamic arrays.
    std::string read(std::uint32_t record, Slot* slots) {
        bytes_.clear();
        at_ = 0;
        isReading_ = true;
        walk(record, slots);
        return bytes_;
    }
    /// Error 6 for bytes that are not a number.
    void write(std::uint32_t record, Slot* slots, std::string bytes) {
        bytes_ = std::move(bytes);
        at_ = 0;
        isReading_ = false;
        walk(record, slots);
    }

private:
    void walk(std::uint32_t record, Slot* slots) {
        align(alignmentOf(record));
        forEachField(code_, record, slots, [&](const image::RecordField& field, Slot* slot) {
            if (field.type.form != TypeForm::Array) return value({field.type, field.fixedLength, slot});
            if (field.array == image::kNone || !slot->array) throw basic::RuntimeError(basic::kTypeMismatch);
            for (std::uint32_t i = 0; i < slot->array->size; ++i) value(elementPlace(*slot->array, i));
        });
        align(alignmentOf(record));
    }
    [[nodiscard]] std::size_t alignmentOf(SlotType type) const {
        switch (type.base) {
        case BaseType::Byte: return 1;
        case BaseType::Boolean:
        case BaseType::Integer:
        case BaseType::Text: return 2;
        case BaseType::Record: return alignmentOf(type.id);
        default: return 4;
        }
    }
    [[nodiscard]] std::size_t alignmentOf(std::uint32_t record) const {
        std::size_t most = 1;
        for (const image::RecordField& field : code_.records.at(record).fields)
            most = std::max(most, alignmentOf(field.type));
        return most;
    }
    void align(std::size_t to) {
        at_ = (at_ + to - 1) / to * to;
        if (isReading_) bytes_.resize(at_);
    }

    void value(const StoredPlace& place) {
        if (place.type.base == BaseType::Record) return walk(place.type.id, place.slot);
        align(alignmentOf(place.type));
        switch (place.type.base) {
        case BaseType::Byte:
            if (!place.isByteElement) return whole<std::uint8_t>(place);
            return number<std::uint8_t>([&] { return *reinterpret_cast<std::uint8_t*>(place.slot); },
                                        [&](std::uint8_t n) { *reinterpret_cast<std::uint8_t*>(place.slot) = n; });
        case BaseType::Boolean:
            return number<std::int16_t>([&] { return static_cast<std::int16_t>(place.whole()); },
                                        [&](std::int16_t n) { place.whole() = n != 0 ? -1 : 0; });
        case BaseType::Integer: return whole<std::int16_t>(place);
        case BaseType::Long: return whole<std::int32_t>(place);
        case BaseType::Single:
            return number<float>([&] { return static_cast<float>(place.slot->fraction); },
                                 [&](float n) { place.slot->fraction = finite(n); });
        case BaseType::Double:
            return number<double>([&] { return place.slot->fraction; },
                                  [&](double n) { place.slot->fraction = finite(n); });
        case BaseType::Date:
            return number<double>([&] { return place.slot->fraction; },
                                  [&](double n) { place.slot->fraction = toDate(finite(n)); });
        case BaseType::Currency:
            return number<std::int64_t>([&] { return place.slot->currency; },
                                        [&](std::int64_t n) { place.slot->currency = n; });
        case BaseType::Text: return text(place);
        default: throw basic::RuntimeError(basic::kTypeMismatch);
        }
    }

    static double finite(double value) {
        if (!isFinite(value)) throw basic::RuntimeError(basic::kOverflow);
        return value;
    }
    template <class Number>
    void whole(const StoredPlace& place) {
        number<Number>([&] { return static_cast<Number>(place.whole()); }, [&](Number n) { place.whole() = n; });
    }
    template <class Number>
    void number(auto get, auto set) {
        using Bytes = std::array<char, sizeof(Number)>;
        session_.charge(sizeof(Number));
        if (isReading_) {
            auto bytes = std::bit_cast<Bytes>(Number(get()));
            if constexpr (std::endian::native == std::endian::big) std::ranges::reverse(bytes);
            bytes_.append(bytes.data(), bytes.size());
        } else {
            Bytes bytes{};
            std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(at_), bytes.size(), bytes.begin());
            if constexpr (std::endian::native == std::endian::big) std::ranges::reverse(bytes);
            set(std::bit_cast<Number>(bytes));
        }
        at_ += sizeof(Number);
    }
    void text(const StoredPlace& place) {
        if (place.fixedLength == 0) throw basic::RuntimeError(basic::kTypeMismatch);
        std::u16string units(unitsOf(place.slot->text));
        units.resize(place.fixedLength);
        for (char16_t& unit : units) number<std::uint16_t>([&] { return unit; }, [&](std::uint16_t n) { unit = n; });
        if (isReading_) return;
        TextBlock* const old = std::exchange(place.slot->text, makeText(session_.heap, units));
        release(session_.heap, old);
    }

    Session& session_;
    const image::CodeImage& code_;
    std::string bytes_;
    std::size_t at_ = 0;
    bool isReading_ = false;
};

/// The first bytes of the target become those of the source, as many as both have.
void copyBytes(NativeCall& call) {
    Slot* const target = call.arguments[0].pointer;
    Slot* const source = call.arguments[2].pointer;
    if (!target || !source) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    const auto& types = call.import->parameters;
    RecordBytes from(call.session, *call.code), to(call.session, *call.code);
    const std::string given = from.read(types[1].id, source);
    std::string bytes = to.read(types[0].id, target);
    std::copy_n(given.begin(), std::min(given.size(), bytes.size()), bytes.begin());
    to.write(types[0].id, target, std::move(bytes));
}

} // namespace

void addRecordBytes(Natives& natives) {
    const SlotType record{BaseType::Record, TypeForm::Reference, kAnyId};
    natives.add("LSetRecord", {{}, {record, record}, &copyBytes});
}

} // namespace tamarik
