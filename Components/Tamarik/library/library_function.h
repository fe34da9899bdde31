#pragma once
// What functions of the library have in common: their arguments and results.
#include "Components/Tamarik/natives/native_function.h"
#include "Components/Tamarik/numbers/arguments.h"
#include "Components/Tamarik/values/held.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_text.h"

namespace tamarik {

/// An argument or result that is an array; of a result, the reference is new.
template <image::BaseType Element, image::TypeForm Form = image::TypeForm::Array>
struct ArrayOf {
    ArrayBlock* array;
};
using TextList = ArrayOf<image::BaseType::Text>;
using DoubleArray = ArrayOf<image::BaseType::Double, image::TypeForm::ArrayReference>;

template <image::BaseType Element>
struct NativeType<ArrayOf<Element>> : NativeSlot<Element, image::TypeForm::Array> {
    static ArrayOf<Element> read(const Slot* slot) { return {slot->array}; }
    static void write(Slot* slot, ArrayOf<Element> value) { slot->array = value.array; }
};
template <>
struct NativeType<DoubleArray> : NativeSlot<image::BaseType::Double, image::TypeForm::ArrayReference> {
    static DoubleArray read(const Slot* slot) { return {slot->pointer ? slot->pointer->array : nullptr}; }
};
template <>
struct NativeType<bool> : NativeSlot<image::BaseType::Long> {
    static bool read(const Slot* slot) { return slot->number != 0; }
    static void write(Slot* slot, bool value) { slot->number = value ? -1 : 0; }
};
template <>
struct NativeType<basic::Date> : NativeSlot<image::BaseType::Double> {
    static basic::Date read(const Slot* slot) { return {slot->fraction}; }
    static void write(Slot* slot, basic::Date value) { slot->fraction = value.days; }
};

[[nodiscard]] inline std::string_view bytesIn(const TextBlock* text) {
    if (!text) return {};
    return {reinterpret_cast<const char*>(text->data()), text->bytes};
}

// These return new references, and count the bytes that they copy.
[[nodiscard]] inline TextBlock* made(Session& session, std::u16string_view text) {
    session.charge(2 * std::uint64_t{text.size()});
    return makeText(session.heap, text);
}
[[nodiscard]] inline TextBlock* filled(Session& session, std::uint64_t characters, char16_t character) {
    session.charge(2 * characters);
    return makeFilled(session.heap, characters, character);
}
[[nodiscard]] inline TextBlock* madeOfBytes(Session& session, std::string_view bytes) {
    session.charge(bytes.size());
    return makeText(session.heap, bytes.data(), bytes.size());
}
[[nodiscard]] inline TextBlock* madeOfUtf8(Session& session, std::string_view utf8) {
    return makeTextOfUtf8(session.heap, utf8);
}
[[nodiscard]] Variant variantOfText(Session& session, std::u16string_view text);

[[nodiscard]] inline double fractionOf(const Variant& v) { return fractionOf(v, image::BaseType::Double); }
[[nodiscard]] inline std::int32_t longOf(const Variant& v) { return longOf(v, image::BaseType::Long); }
[[nodiscard]] inline std::int32_t longOr(const Variant& v, std::int32_t omitted) {
    return v.isMissing() ? omitted : longOf(v);
}
[[nodiscard]] inline double doubleOr(const Variant& v, double omitted) {
    return v.isMissing() ? omitted : fractionOf(v);
}
[[nodiscard]] inline Variant ofInteger(std::int32_t number) { return ofNumber(number, kInteger); }
[[nodiscard]] inline Variant null() { return ofKind(kNull); }
/// Error 5 for a comparison other than binary and textual.
[[nodiscard]] basic::VbCompareMethod comparisonOf(std::int32_t number);
/// A Variant with a date, or one that converts to it; texts without a year are in the present one.
[[nodiscard]] basic::Date dateOf(Session& session, const Variant& v);
/// Today, without the time.
[[nodiscard]] basic::Date today(Session& session);
/// The text of a Variant, of an array of Bytes its bytes; a new reference. Errors as textOf.
[[nodiscard]] TextBlock* textIn(Session& session, const Variant& v);
/// UTF-8 for ports. Error 13 for what is not a text, 94 for Null.
[[nodiscard]] std::string utf8Of(Session& session, const Variant& v);

/// Makes of a function that returns a text, such as Left$, the one that returns a Variant.
template <auto F>
struct AsVariant;
template <class... Parameters, TextBlock* (*F)(Session&, Parameters...)>
struct AsVariant<F> {
    static Variant call(Session& session, Parameters... values) { return ofText(F(session, values...)); }
};

/// The same for one whose first parameter is a text, of which Null gives Null.
template <auto F>
struct OrNull;
template <class... Parameters, TextBlock* (*F)(Session&, TextBlock*, Parameters...)>
struct OrNull<F> {
    static Variant call(Session& session, const Variant& v, Parameters... values) {
        if (v.kind == kNull) return null();
        const HeldText text(session.heap, textIn(session, v));
        return ofText(F(session, text, values...));
    }
};
template <class... Parameters, TextBlock* (*F)(Session&, const Variant&, Parameters...)>
struct OrNull<F> {
    static Variant call(Session& session, const Variant& v, Parameters... values) {
        return v.kind == kNull ? null() : ofText(F(session, v, values...));
    }
};

/// Adds a function that returns a text as name$, and the one that returns a Variant, of which Null gives Null.
template <auto F>
void addForms(Natives& natives, const std::string& name) {
    natives.add(name, native<&OrNull<F>::call>());
    natives.add(name + "$", native<F>());
}
/// The same for a function that Null cannot reach.
template <auto F>
void addPlainForms(Natives& natives, const std::string& name) {
    natives.add(name, native<&AsVariant<F>::call>());
    natives.add(name + "$", native<F>());
}

} // namespace tamarik
