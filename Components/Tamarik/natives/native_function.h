#pragma once
// Makes a Native of a C++ function; the signature follows from its types.
#include "Basic/runtime_error.h"
#include "Basic/types.h"
#include "Components/Tamarik/natives/natives.h"
#include "Components/Tamarik/values/array_block.h"
#include "Components/Tamarik/values/object.h"
#include <tuple>
#include <type_traits>
#include <utility>

namespace tamarik {

/// How a C++ type is passed: its slot type, and how it is read from slots. Long is std::int32_t, a Text its characters or its
/// block, `Variant&` a reference to a Variant.
template <class T>
struct NativeType;

template <image::BaseType Base, image::TypeForm Form = image::TypeForm::Value>
struct NativeSlot {
    static constexpr image::SlotType type{Base, Form};
};

template <>
struct NativeType<std::int32_t> : NativeSlot<image::BaseType::Long> {
    static std::int32_t read(const Slot* slot) { return slot->number; }
    static void write(Slot* slot, std::int32_t value) { slot->number = value; }
};
template <>
struct NativeType<double> : NativeSlot<image::BaseType::Double> {
    static double read(const Slot* slot) { return slot->fraction; }
    static void write(Slot* slot, double value) { slot->fraction = value; }
};
template <>
struct NativeType<basic::Currency> : NativeSlot<image::BaseType::Currency> {
    static basic::Currency read(const Slot* slot) { return {slot->currency}; }
    static void write(Slot* slot, basic::Currency value) { slot->currency = value.scaled; }
};
template <>
struct NativeType<std::u16string_view> : NativeSlot<image::BaseType::Text> {
    static std::u16string_view read(const Slot* slot) { return unitsOf(slot->text); }
};
template <>
struct NativeType<TextBlock*> : NativeSlot<image::BaseType::Text> {
    static TextBlock* read(const Slot* slot) { return slot->text; }
    static void write(Slot* slot, TextBlock* value) { slot->text = value; }
};
/// A reference to a text; its block may be replaced.
template <>
struct NativeType<TextBlock*&> : NativeSlot<image::BaseType::Text, image::TypeForm::Reference> {
    static TextBlock*& read(const Slot* slot) {
        if (!slot->pointer) throw basic::RuntimeError(basic::kObjectVariableNotSet);
        return slot->pointer->text;
    }
};
/// A variable of a whole number, perhaps an element of an array, which takes less than a slot.
template <>
struct NativeType<std::int32_t&> : NativeSlot<image::BaseType::Long, image::TypeForm::Reference> {
    static std::int32_t& read(const Slot* slot) {
        if (!slot->pointer) throw basic::RuntimeError(basic::kObjectVariableNotSet);
        return numberAt(slot->pointer);
    }
};
template <>
struct NativeType<std::int64_t&> : NativeSlot<image::BaseType::Currency, image::TypeForm::Reference> {
    static std::int64_t& read(const Slot* slot) {
        if (!slot->pointer) throw basic::RuntimeError(basic::kObjectVariableNotSet);
        return slot->pointer->currency;
    }
};
template <>
struct NativeType<Object*> : NativeSlot<image::BaseType::Object> {
    static Object* read(const Slot* slot) { return slot->object; }
    static void write(Slot* slot, Object* value) { slot->object = value; }
};
template <>
struct NativeType<const Variant&> : NativeSlot<image::BaseType::Variant> {
    static const Variant& read(const Slot* slot) { return variantAt(slot); }
};
template <>
struct NativeType<Variant> : NativeSlot<image::BaseType::Variant> {
    static void write(Slot* slot, const Variant& value) { variantAt(slot) = value; }
};
template <>
struct NativeType<Variant&> : NativeSlot<image::BaseType::Variant, image::TypeForm::Reference> {
    static Variant& read(const Slot* slot) {
        if (!slot->pointer) throw basic::RuntimeError(basic::kObjectVariableNotSet);
        return variantAt(slot->pointer);
    }
};
/// An array of Variants, such as the arguments of a ParamArray; null if it has none.
struct VariantArray {
    ArrayBlock* block;
};
template <>
struct NativeType<VariantArray> : NativeSlot<image::BaseType::Variant, image::TypeForm::Array> {
    static VariantArray read(const Slot* slot) { return {slot->array}; }
};
template <>
struct NativeType<void> {
    static constexpr image::SlotType type{};
};

template <class F>
struct NativeSignature;

template <class R, class... Parameters>
struct NativeSignature<R (*)(Session&, Parameters...)> {
    using Result = R;
    static std::vector<image::SlotType> parameters() { return {NativeType<Parameters>::type...}; }

    template <auto F>
    static void call(NativeCall& call) {
        invoke<F>(call, std::index_sequence_for<Parameters...>());
    }

private:
    template <std::size_t N>
    static constexpr std::size_t placeOf() {
        constexpr std::uint32_t sizes[]{slotsOf(NativeType<Parameters>::type)..., 0};
        std::size_t place = 0;
        for (std::size_t i = 0; i < N; ++i) place += sizes[i];
        return place;
    }

    template <auto F, std::size_t... I>
    static void invoke(NativeCall& call, std::index_sequence<I...>) {
        if constexpr (std::is_void_v<R>)
            F(call.session, NativeType<Parameters>::read(call.arguments + placeOf<I>())...);
        else
            NativeType<R>::write(call.result,
                                 F(call.session, NativeType<Parameters>::read(call.arguments + placeOf<I>())...));
    }
};

/// A function whose first parameter is the Session; it returns new references.
template <auto F>
[[nodiscard]] Native native() {
    using Signature = NativeSignature<decltype(F)>;
    return {NativeType<typename Signature::Result>::type, Signature::parameters(), &Signature::template call<F>};
}

} // namespace tamarik
