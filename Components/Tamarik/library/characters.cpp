// Characters by number.
#include "Components/Tamarik/library/code_pages.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"

namespace tamarik {

namespace {

std::int32_t asc(Session& session, std::u16string_view text) { return Asc(text, pageOf(session)); }
std::int32_t ascUnit(Session&, std::u16string_view text) { return AscW(text); }
std::int32_t ascByte(Session&, TextBlock* text) { return AscB(bytesIn(text)); }

TextBlock* chr(Session& session, std::int32_t number) { return made(session, Chr(number, pageOf(session))); }
TextBlock* chrUnit(Session& session, std::int32_t number) {
    const char16_t unit = ChrW(number);
    return made(session, {&unit, 1});
}
TextBlock* chrByte(Session& session, std::int32_t number) {
    const char byte = ChrB(number);
    return madeOfBytes(session, {&byte, 1});
}

} // namespace

void addCharacters(Natives& natives) {
    natives.add("Asc", native<&asc>());
    natives.add("AscW", native<&ascUnit>());
    natives.add("AscB", native<&ascByte>());
    addPlainForms<&chr>(natives, "Chr");
    addPlainForms<&chrUnit>(natives, "ChrW");
    addPlainForms<&chrByte>(natives, "ChrB");
}

} // namespace tamarik
