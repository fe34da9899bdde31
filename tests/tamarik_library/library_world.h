#pragma once
// Calls functions of the library as compiled code does, but without a program.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/values/array_block.h"
#include "Components/Tamarik/values/encoding.h"
#include "Components/Tamarik/values/records.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_text.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tamarik {

/// Values for calls. Texts and arrays are released with the world.
class LibraryWorld : public testing::Test {
protected:
    LibraryWorld() : session(kMostHeapBytes, outputs(), 1252), natives(standardNatives()) {
        session.surroundings.now = [this] { return time; };
    }
    ~LibraryWorld() override {
        session.files.closeAll();
        for (const Variant& v : values_) release(session.heap, v);
        while (session.heap.hasPending()) destroy(session.heap, static_cast<ArrayBlock*>(session.heap.takePending()));
        EXPECT_EQ(session.heap.used(), 0U);
    }

    std::string printed;
    basic::Date time{37622.5}; ///< January 1, 2003, noon
    Session session;
    Natives natives;

    Variant text(std::u16string_view units) { return kept(ofText(makeText(session.heap, units))); }
    Variant bytes(std::string_view data) { return kept(ofText(makeText(session.heap, data.data(), data.size()))); }
    Variant kept(const Variant& v) {
        values_.push_back(v);
        return v;
    }
    /// An array of Variants, from 0 on.
    Variant list(const std::vector<Variant>& items) {
        const Bounds bounds{0, static_cast<std::int32_t>(items.size()) - 1};
        ArrayBlock* const array = makeArray(session.heap, {{image::BaseType::Variant}}, {&bounds, 1});
        for (std::size_t i = 0; i < items.size(); ++i)
            variantAt(array->as<Slot>() + 2 * i) = copyOf(session.heap, items[i]);
        return kept(ofArray(array));
    }

    /// Calls the function with arguments converted to its parameters; omitted ones at the end are Missing or 0.
    Variant call(std::string_view name, const std::vector<Variant>& arguments = {}) {
        const auto forms = natives.find(name);
        if (forms.empty()) throw std::invalid_argument(std::string(name));
        return callForm(forms.front(), arguments);
    }

    Variant callForm(const Native& native, const std::vector<Variant>& arguments) {
        std::vector<Slot> slots;
        for (std::size_t i = 0; i < native.parameters.size(); ++i)
            pass(slots, native.parameters[i], i < arguments.size() ? arguments[i] : missing());
        NativeCall made{session, slots.data(), {}};
        native.call(made);
        return kept(resultOf(native.result, made));
    }

    /// The number of the error of a call, or 0.
    int errorOf(std::string_view name, const std::vector<Variant>& arguments = {}) {
        try {
            (void)call(name, arguments);
            return 0;
        } catch (const basic::RuntimeError& error) { return error.Number; }
    }

    /// A result as CStr shows it, after its type: "Integer 3", "Null".
    std::string shown(const Variant& v) {
        Variant named = call("TypeName", {v});
        const std::string type = toUtf8(unitsOf(named.text));
        if (v.isArray()) return type + elementsOf(v);
        if (v.kind == kNull || v.kind == kEmpty || v.kind == kObject) return type;
        TextBlock* const shownText = textOf(session.heap, v);
        const std::string result = type + " " + toUtf8(unitsOf(shownText));
        release(session.heap, shownText);
        return result;
    }

private:
    Output outputs() {
        Output output;
        output.print = [this](std::string_view t) { printed += t; };
        return output;
    }

    std::string elementsOf(const Variant& v) {
        std::string result;
        for (std::uint32_t i = 0; i < v.array->size; ++i)
            result += (i == 0 ? " " : "|") + shown(kept(elementAt(session.heap, *v.array, i)));
        return result;
    }

    void pass(std::vector<Slot>& slots, image::SlotType type, const Variant& v) {
        Slot slot{};
        if (type.form == image::TypeForm::Array) {
            slot.array = v.array;
        } else if (type.form == image::TypeForm::Reference || type.form == image::TypeForm::ArrayReference) {
            slot.pointer = reinterpret_cast<Slot*>(static_cast<std::uintptr_t>(v.low));
            slots.push_back(slot);
            slot.bits = 0;
        } else if (type.base == image::BaseType::Variant) {
            slots.resize(slots.size() + 2);
            variantAt(slots.data() + slots.size() - 2) = v;
            return;
        } else if (!v.isMissing()) {
            slot = slotOf(type.base, v);
        }
        slots.push_back(slot);
    }

    Slot slotOf(image::BaseType base, const Variant& v) {
        Slot slot{};
        if (base == image::BaseType::Long) slot.number = longOf(v, base);
        if (base == image::BaseType::Double) slot.fraction = fractionOf(v, base);
        if (base == image::BaseType::Currency) slot.currency = currencyOf(v);
        if (base == image::BaseType::Object) slot.object = v.object;
        if (base == image::BaseType::Text) slot.text = kept(ofText(textOf(session.heap, v))).text;
        return slot;
    }

    static Variant resultOf(image::SlotType type, const NativeCall& made) {
        if (type.form == image::TypeForm::Array) return ofArray(made.result[0].array);
        switch (type.base) {
        case image::BaseType::None: return {};
        case image::BaseType::Long: return ofNumber(made.result[0].number);
        case image::BaseType::Double: return ofFraction(made.result[0].fraction);
        case image::BaseType::Currency: return ofCurrency(made.result[0].currency);
        case image::BaseType::Text: return ofText(made.result[0].text);
        case image::BaseType::Object: return ofObject(made.result[0].object);
        default: return variantAt(made.result);
        }
    }

    std::vector<Variant> values_;
};

} // namespace tamarik
