#include "Components/Image/verify/code_check.h"

namespace image {

namespace {

/// The words before the arguments: the instruction, and what it calls.
constexpr std::size_t kCallHead = 2;

bool isValue(SlotType type, BaseType base) { return type.form == TypeForm::Value && type.base == base; }
bool isReference(SlotType type) { return type.form > TypeForm::Array; }

} // namespace

void CodeCheck::checkCount(const Place& place, std::size_t parameters) const {
    if (place.word.c != parameters)
        refuseHere("passes " + std::to_string(place.word.c) + " arguments for " + std::to_string(parameters) +
                   " parameters");
    checkLastHalf(place, kCallHead, parameters);
}

void CodeCheck::checkResult(const Place& place, SlotType result) const {
    if (place.word.a == kNoSlot) return;
    if (result == SlotType{}) refuseHere("stores a result, but there is none");
    checkAssigns(typeOf(place.word.a), result);
}

bool CodeCheck::passes(std::uint16_t argument, SlotType type, SlotType parameter) const {
    switch (passOf(argument)) {
    case Pass::Number: return type == parameter && !isManaged(type);
    case Pass::Text: return isValue(parameter, BaseType::Text) && type == parameter;
    case Pass::Object: return isValue(parameter, BaseType::Object) && takes(parameter, type);
    case Pass::Variant: return isValue(parameter, BaseType::Variant) && type == parameter;
    case Pass::Take: return isManaged(parameter) && slotsOf(parameter) == 1 && takes(parameter, type);
    case Pass::TakePair: return slotsOf(parameter) == 2 && type == parameter;
    case Pass::Address:
        if (parameter.form == TypeForm::Reference && parameter.base == BaseType::Record)
            return slots_.beginsRecord(slotOf(argument), parameter.id);
        return mayRefer(parameter, type);
    case Pass::Ref: return isReference(parameter) && type == parameter;
    }
    return false;
}

void CodeCheck::checkArgument(std::size_t index, std::uint16_t argument, SlotType parameter) const {
    const auto slot = slotOf(argument);
    const auto type = slots_.typeAt(slot);
    if (type != SlotType{} && type.base != BaseType::Half && passes(argument, type, parameter)) return;
    const auto name = "passes argument " + std::to_string(index) + ", slot " + std::to_string(slot);
    if (type == SlotType{}) refuseHere(name + ", which does not exist");
    refuseHere(name + ", which is " + describe(type) + ", as " + std::string(nameOf(passOf(argument))) + " to " +
               describe(parameter));
}

void CodeCheck::checkCall(const Place& place) const {
    const auto number = place.extra();
    if (number >= code_.procedures.size())
        refuseHere("calls procedure " + std::to_string(number) + ", which does not exist");
    const auto& called = code_.procedures[number];
    if (place.op() == Op::CallMethod &&
        (called.parameters == 0 || !isValue(called.variables[0].type, BaseType::Object)))
        refuseHere("calls " + procedureName(code_, number) + ", which is no method");
    checkCount(place, called.parameters);
    for (std::size_t i = 0; i < called.parameters; ++i)
        checkArgument(i, place.half(kCallHead, i), called.variables[i].type);
    checkResult(place, tables_.results[number]);
}

void CodeCheck::checkInterface(const Place& place) const {
    const auto number = place.extra() & 0xFFFF, index = place.extra() >> 16;
    if (number == 0 || number > code_.classes.size() || index >= code_.classes[number - 1].members.size())
        refuseHere("calls member " + std::to_string(index) + " of " + className(code_, number) +
                   ", which does not exist");
    const auto& member = code_.classes[number - 1].members[index];
    // Only these are implemented by all classes that implement the interface.
    if (!member.isPublic || member.use == MemberUse::Field)
        refuseHere("calls member " + std::to_string(index) + " of " + className(code_, number) +
                   ", which is no public method");
    const auto& called = code_.procedures[member.target];
    checkCount(place, called.parameters);
    checkArgument(0, place.half(kCallHead, 0), {BaseType::Object});
    for (std::size_t i = 1; i < called.parameters; ++i)
        checkArgument(i, place.half(kCallHead, i), called.variables[i].type);
    checkResult(place, tables_.results[member.target]);
}

void CodeCheck::checkImport(const Place& place) const {
    const auto number = place.extra();
    if (number >= code_.imports.size())
        refuseHere("calls function " + std::to_string(number) + " of the runtime, which does not exist");
    const auto& called = code_.imports[number];
    checkCount(place, called.parameters.size());
    for (std::size_t i = 0; i < called.parameters.size(); ++i)
        checkArgument(i, place.half(kCallHead, i), called.parameters[i]);
    checkResult(place, called.result);
}

void CodeCheck::checkEvent(const Place& place) const {
    const auto& source = classOfObject(place.word.b, 'B');
    const auto number = place.extra();
    if (number >= source.events.size()) refuseHere("raises event " + std::to_string(number) + ", which does not exist");
    const auto& event = source.events[number];
    checkCount(place, event.parameters.size());
    for (std::size_t i = 0; i < event.parameters.size(); ++i)
        checkArgument(i, place.half(kCallHead, i), event.parameters[i]);
}

void CodeCheck::checkLate(const Place& place) const {
    if (place.words[1] != kNone) checkText(place.words[1]);
    const auto use = place.words[2] & 0xFF, named = place.words[2] >> 8;
    if (use > std::uint32_t(LateUse::Set)) refuseHere("uses a member in an unknown way");
    const bool assigns = use >= std::uint32_t(LateUse::Let);
    if (assigns && place.word.c == 0) refuseHere("assigns no value");
    if (named + (assigns ? 1U : 0U) > place.word.c) refuseHere("has more names than arguments");
    for (std::size_t i = 0; i < named; ++i) checkText(place.words[1 + kLateHeadWords + i]);
    checkSlots(place, 1 + kLateHeadWords + named, place.word.c, BaseType::Variant);
}

} // namespace image
