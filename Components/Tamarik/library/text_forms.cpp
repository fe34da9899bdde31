// Letter case, conversion, repetition and length of texts.
#include "Components/Tamarik/library/code_pages.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/building.h"
#include "Components/Tamarik/text/letters.h"
#include "Components/Tamarik/text/strconv.h"

namespace tamarik {

namespace {

TextBlock* upperCase(Session& session, TextBlock* text) { return made(session, UCase(unitsOf(text))); }
TextBlock* lowerCase(Session& session, TextBlock* text) { return made(session, LCase(unitsOf(text))); }
TextBlock* reversed(Session& session, TextBlock* text) { return made(session, StrReverse(unitsOf(text))); }

TextBlock* space(Session& session, std::int32_t count) { return filled(session, requireCount(count), u' '); }

TextBlock* repeated(Session& session, std::int32_t count, const Variant& character) {
    const std::size_t length = requireCount(count);
    char16_t unit = 0;
    if (character.kind == kString) {
        requireArgument(!unitsOf(character.text).empty());
        unit = unitsOf(character.text).front();
    } else {
        unit = Chr(longOf(character) & 0xFF, pageOf(session)).front();
    }
    return filled(session, length, unit);
}

Variant repeatedOrNull(Session& session, std::int32_t count, const Variant& character) {
    return character.kind == kNull ? null() : ofText(repeated(session, count, character));
}

Variant strConv(Session& session, const Variant& v, std::int32_t conversion, std::int32_t) {
    if (v.kind == kNull) return null();
    const HeldText text(session.heap, textIn(session, v));
    return ofText(madeOfBytes(session, StrConv(bytesIn(text), conversion, pageOf(session))));
}

/// The bytes of the data type if a Variant holds something other than a text.
std::int32_t bytesOfKind(const Variant& v) {
    switch (v.kind) {
    case kByte: return 1;
    case kInteger:
    case kBoolean: return 2;
    case kLong:
    case kSingle: return 4;
    case kDouble:
    case kDate:
    case kCurrency: return 8;
    case kDecimal: return 14;
    default: return 0;
    }
}

/// Len of a Variant counts the characters of its text; LenB the bytes.
std::int32_t bytesOfText(Session& session, const Variant& v) {
    const HeldText text(session.heap, textIn(session, v));
    return static_cast<std::int32_t>(bytesOf(text));
}

Variant len(Session& session, const Variant& v) {
    return v.kind == kNull ? null() : ofNumber(bytesOfText(session, v) / 2);
}
Variant lenBytes(Session& session, const Variant& v) {
    if (v.kind == kNull) return null();
    return ofNumber(bytesOfKind(v) != 0 ? bytesOfKind(v) : bytesOfText(session, v));
}

} // namespace

void addTextForms(Natives& natives) {
    addForms<&upperCase>(natives, "UCase");
    addForms<&lowerCase>(natives, "LCase");
    natives.add("StrReverse", native<&reversed>());
    addPlainForms<&space>(natives, "Space");
    natives.add("String", native<&repeatedOrNull>());
    natives.add("String$", native<&repeated>());
    natives.add("StrConv", native<&strConv>());
    natives.add("Len", native<&len>());
    natives.add("LenB", native<&lenBytes>());
}

} // namespace tamarik
