// What a program asks its user and its surroundings. Without a window, questions go to the error output and the input.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/encoding.h"
#include <algorithm>
#include <array>

namespace tamarik {

namespace {

void showQuestion(Session& session, const Variant& prompt, const Variant& title) {
    std::string shown = title.isMissing() ? std::string() : utf8Of(session, title) + ": ";
    shown += utf8Of(session, prompt) + "\n";
    if (session.output.error) session.output.error(shown);
}

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

std::int32_t msgBox(Session& session, const Variant& prompt, std::int32_t buttons, const Variant& title, const Variant&,
                    const Variant&) {
    const std::int32_t button = defaultButton(buttons);
    showQuestion(session, prompt, title);
    return button;
}

/// The end of the input is the Cancel button; an empty line takes the default.
TextBlock* inputBox(Session& session, const Variant& prompt, const Variant& title, const Variant& usual, const Variant&,
                    const Variant&, const Variant&, const Variant&) {
    const HeldText byDefault(session, usual.isMissing() ? nullptr : textIn(session, usual));
    showQuestion(session, prompt, title);
    std::string line;
    if (!session.output.inputLine || !session.output.inputLine(line)) return nullptr;
    return line.empty() ? retain(static_cast<TextBlock*>(byDefault)) : madeOfUtf8(session, line);
}

void beep(Session&) {}
std::int32_t doEvents(Session&) { return 0; }

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
std::int32_t variableId(Session& session, const Variant& v) {
    if (isManagedKind(v)) return session.identities.of(v.text);
    return session.identities.of(&v);
}

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
    natives.add("VarPtr", native<&variableId>());
}

} // namespace tamarik
