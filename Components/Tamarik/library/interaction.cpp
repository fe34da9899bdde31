// What a program asks its user and its surroundings.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/encoding.h"
#include <algorithm>
#include <array>

namespace tamarik {

using image::BaseType;

namespace {

/// The number of the button that Enter chooses.
std::int32_t defaultButton(std::int32_t style) {
    enum : std::int32_t { Ok = 1, Cancel, Abort, Retry, Ignore, Yes, No };
    constexpr std::array<std::array<std::int32_t, 3>, 6> kButtons{
        {{Ok}, {Ok, Cancel}, {Abort, Retry, Ignore}, {Yes, No, Cancel}, {Yes, No}, {Retry, Cancel}}};
    const auto set = static_cast<std::size_t>(style & 7), chosen = static_cast<std::size_t>(style >> 8 & 3);
    requireArgument(set < kButtons.size());
    const auto& buttons = kButtons[set];
    return chosen < buttons.size() && buttons[chosen] != 0 ? buttons[chosen] : buttons[0];
}

/// Of an optional argument.
std::string givenText(Session& session, const Variant& given) {
    return given.isMissing() ? std::string() : utf8Of(session, given);
}

std::int32_t msgBox(Session& session, const Variant& prompt, std::int32_t buttons, const Variant& title, const Variant&,
                    const Variant&) {
    const std::int32_t button = defaultButton(buttons);
    session.wait = {{Wait::Kind::Message, utf8Of(session, prompt), givenText(session, title), {}, buttons, button},
                    [](Session&, const Answer& answer, Slot& result) { result.number = answer.button; }};
    return 0;
}

TextBlock* inputBox(Session& session, const Variant& prompt, const Variant& title, const Variant& usual, const Variant&,
                    const Variant&, const Variant&, const Variant&) {
    session.wait = {{Wait::Kind::Input, utf8Of(session, prompt), givenText(session, title), givenText(session, usual)},
                    [](Session& s, const Answer& answer, Slot& result) {
                        if (answer.text) result.text = madeOfUtf8(s, *answer.text);
                    }};
    return nullptr;
}

void beep(Session&) {}

std::int32_t doEvents(Session& session) {
    session.wait = WaitRequest{};
    return 0;
}

TextBlock* commandLine(Session& session) { return madeOfUtf8(session, session.surroundings.commandLine); }

/// By name its value, by number from 1 on "NAME=value".
TextBlock* environmentText(Session& session, const Variant& which) {
    if (which.kind == kString) return madeOfUtf8(session, session.surroundings.variable(utf8Of(session, which)));
    const auto& variables = session.surroundings.environment;
    const std::int32_t number = longOf(which);
    requireArgument(number >= 1);
    const auto index = static_cast<std::size_t>(number) - 1;
    return index < variables.size() ? madeOfUtf8(session, variables[index]) : nullptr;
}

std::int32_t textId(Session& session, TextBlock* text) { return session.identities.of(text); }
std::int32_t objectId(Session& session, Object* object) { return session.identities.of(object); }
void variableId(NativeCall& call) { call.result[0].number = call.session.identities.of(call.arguments[0].pointer); }

} // namespace

void addInteraction(Natives& natives) {
    natives.add("MsgBox", native<&msgBox>());
    natives.add("InputBox", native<&inputBox>());
    natives.add("Beep", native<&beep>());
    natives.add("DoEvents", native<&doEvents>());
    addPlainForms<&commandLine>(natives, "Command");
    addPlainForms<&environmentText>(natives, "Environ");
    natives.add("StrPtr", native<&textId>());
    natives.add("ObjPtr", native<&objectId>());
    for (const auto base : {BaseType::Long, BaseType::Double, BaseType::Currency, BaseType::Text, BaseType::Variant,
                            BaseType::Object, BaseType::Record}) {
        const bool hasId = base == BaseType::Object || base == BaseType::Record;
        const image::SlotType variable{base, image::TypeForm::Reference, hasId ? kAnyId : 0};
        natives.addForm("VarPtr", {{BaseType::Long}, {variable}, &variableId});
    }
}

} // namespace tamarik
