// Statements that change texts.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/building.h"
#include <span>

namespace tamarik {

/// A reference to a text.
struct TextPlace {
    Slot& slot;
};
template <>
struct NativeType<TextPlace> : NativeSlot<image::BaseType::Text, image::TypeForm::Reference> {
    static TextPlace read(const Slot* slot) {
        if (!slot->pointer) throw basic::RuntimeError(basic::kObjectVariableNotSet);
        return {*slot->pointer};
    }
};

namespace {

TextBlock* leftSet(Session& session, std::u16string_view present, std::u16string_view text) {
    TextBlock* const result = filled(session, present.size(), u' ');
    if (result) fillLeft({result->units(), present.size()}, text);
    return result;
}

TextBlock* rightSet(Session& session, std::u16string_view present, std::u16string_view text) {
    TextBlock* const result = filled(session, present.size(), u' ');
    if (result) fillRight({result->units(), present.size()}, text);
    return result;
}

/// Others may share the text, and it may be part of what replaces it.
TextBlock* ownText(Session& session, Slot& slot) {
    TextBlock* const old = slot.text;
    session.charge(bytesOf(old));
    if (old && old->count != 1) {
        slot.text = makeText(session.heap, old->data(), old->bytes);
        release(session.heap, old);
    }
    if (slot.text) slot.text->hash = 0;
    return slot.text;
}

std::optional<basic::Long> lengthOf(std::int32_t length) {
    return length == -1 ? std::nullopt : std::optional<basic::Long>(length);
}

void setMid(Session& session, TextPlace place, std::int32_t start, std::int32_t length, std::u16string_view by) {
    TextBlock* const text = ownText(session, place.slot);
    replaceMid(text ? std::span(text->units(), text->bytes / 2) : std::span<char16_t>(), start, lengthOf(length), by);
}

void setMidBytes(Session& session, TextPlace place, std::int32_t start, std::int32_t length, TextBlock* by) {
    TextBlock* const text = ownText(session, place.slot);
    const auto bytes = text ? std::span(reinterpret_cast<char*>(text->data()), text->bytes) : std::span<char>();
    replaceMid(bytes, start, lengthOf(length), bytesIn(by));
}

} // namespace

void addTextStatements(Natives& natives) {
    natives.add("LSet", native<&leftSet>());
    natives.add("RSet", native<&rightSet>());
    natives.add("Mid=", native<&setMid>());
    natives.add("MidB=", native<&setMidBytes>());
}

} // namespace tamarik
