// Left, Right, Mid and Trim, by characters and by bytes.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/pieces.h"

namespace tamarik {

namespace {

TextBlock* left(Session& session, TextBlock* text, std::int32_t length) {
    return made(session, Left(unitsOf(text), length));
}
TextBlock* leftBytes(Session& session, TextBlock* text, std::int32_t length) {
    return madeOfBytes(session, LeftB(bytesIn(text), length));
}
TextBlock* right(Session& session, TextBlock* text, std::int32_t length) {
    return made(session, Right(unitsOf(text), length));
}
TextBlock* rightBytes(Session& session, TextBlock* text, std::int32_t length) {
    return madeOfBytes(session, RightB(bytesIn(text), length));
}
TextBlock* mid(Session& session, TextBlock* text, std::int32_t start, const Variant& length) {
    return made(session, Mid(unitsOf(text), start, longOr(length, kToTheEnd)));
}
TextBlock* midBytes(Session& session, TextBlock* text, std::int32_t start, const Variant& length) {
    return madeOfBytes(session, MidB(bytesIn(text), start, longOr(length, kToTheEnd)));
}
TextBlock* trim(Session& session, TextBlock* text) { return made(session, Trim(unitsOf(text))); }
TextBlock* trimLeft(Session& session, TextBlock* text) { return made(session, LTrim(unitsOf(text))); }
TextBlock* trimRight(Session& session, TextBlock* text) { return made(session, RTrim(unitsOf(text))); }

} // namespace

void addTextPieces(Natives& natives) {
    addForms<&left>(natives, "Left");
    addForms<&leftBytes>(natives, "LeftB");
    addForms<&right>(natives, "Right");
    addForms<&rightBytes>(natives, "RightB");
    addForms<&mid>(natives, "Mid");
    addForms<&midBytes>(natives, "MidB");
    addForms<&trim>(natives, "Trim");
    addForms<&trimLeft>(natives, "LTrim");
    addForms<&trimRight>(natives, "RTrim");
}

} // namespace tamarik
