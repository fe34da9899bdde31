// Numbers as texts in other forms, and back.
#include "Components/Tamarik/values/number_texts.h"
#include "Basic/number_text.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/values.h"
#include "Components/Tamarik/values/decimal_values.h"

namespace tamarik {

namespace {

bool isShort(const Variant& v) {
    return v.kind == kEmpty || v.kind == kBoolean || v.kind == kByte || v.kind == kInteger;
}

TextBlock* hex(Session& session, const Variant& v) {
    const std::int32_t number = longOf(v);
    return made(session, isShort(v) ? Hex(static_cast<basic::Integer>(number)) : Hex(basic::Long{number}));
}

TextBlock* oct(Session& session, const Variant& v) {
    const std::int32_t number = longOf(v);
    return made(session, isShort(v) ? Oct(static_cast<basic::Integer>(number)) : Oct(basic::Long{number}));
}

std::u16string signedText(Session& session, const Variant& v) {
    switch (v.kind) {
    case kEmpty: return Str(basic::Long{0});
    case kByte:
    case kInteger:
    case kLong: return Str(basic::Long{v.number});
    case kSingle: return Str(static_cast<basic::Single>(v.fraction));
    case kDouble: return Str(v.fraction);
    case kCurrency: return Str<basic::Currency>({v.currency});
    case kString: return Str(fractionOf(v));
    case kDecimal: return Str(decimalOf(v));
    case kError: throw basic::RuntimeError(basic::kTypeMismatch);
    default: {
        const HeldText text(session.heap, textOf(session.heap, v));
        return std::u16string(unitsOf(text));
    }
    }
}

TextBlock* str(Session& session, const Variant& v) { return made(session, signedText(session, v)); }

double val(Session&, std::u16string_view text) { return Val(text); }

} // namespace

void addNumberTexts(Natives& natives) {
    addForms<&hex>(natives, "Hex");
    addForms<&oct>(natives, "Oct");
    addForms<&str>(natives, "Str");
    natives.add("Val", native<&val>());
}

} // namespace tamarik
