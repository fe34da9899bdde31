// A class that others implement has procedures for its public variables, as each of those classes has. So has a variable
// whose object is made when it is read, for late binding.
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::Op;

void Emitter::fieldAccesses() {
    for (const auto& [field, decl] : module_.variables) {
        if (const auto* reader = layout_.readerOf(*field)) readField(*field, *reader);
        const auto* access = layout_.accessTo(*field);
        if (!access) continue;
        if (access->property.let) assignField(*field, access->let, false);
        if (access->property.set) assignField(*field, access->set, true);
    }
}

void Emitter::beginAccess(const Entity& field, image::Procedure& made) {
    static const Notes kNoNotes(1);
    begin(nullptr, &kNoNotes);
    decl_ = nullptr;
    slots_.begin(false);
    me_ = slots_.variable(typeOfMe(), 1);
    made.name = out_.module().text(std::string(spelling(field.name)));
}

void Emitter::readField(const Entity& field, const Callable& callable) {
    image::Procedure made;
    beginAccess(field, made);
    made.parameters = slots_.variableCount();
    const auto type = known(field.type);
    made.resultSlot = slots_.variable(layout_.slotTypeOf(type), layout_.slotsOf(type));
    slots_.endVariables();
    (void)moved(load(variablePlace(field), made.resultSlot), made.resultSlot);
    out_.emit(Op::Return);
    finish(std::move(made), callable.number);
}

void Emitter::assignField(const Entity& field, const Callable& callable, bool isSet) {
    image::Procedure made;
    beginAccess(field, made);
    const auto type = known(field.type);
    const Value value{type, slots_.variable(layout_.slotTypeOf(type), layout_.slotsOf(type)), false};
    made.parameters = slots_.variableCount();
    slots_.endVariables();
    isSet ? setObject(variablePlace(field), value) : assignValue(variablePlace(field), value);
    out_.emit(Op::Return);
    finish(std::move(made), callable.number);
}

} // namespace qltoolkit
