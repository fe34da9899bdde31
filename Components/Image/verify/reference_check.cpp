#include "Components/Image/verify/code_check.h"

namespace image {

void CodeCheck::checkAssigns(SlotType to, SlotType from) const {
    if (from == SlotType{}) refuseHere("reads a slot that does not exist");
    if (to == SlotType{}) refuseHere("writes a slot that does not exist");
    if (!takes(to, from)) refuseHere("assigns " + describe(from) + " to " + describe(to));
}

void CodeCheck::checkRefersTo(SlotType reference, SlotType target, bool isRecord) const {
    if (reference.form == TypeForm::Reference && reference.base == BaseType::Record) {
        if (!isRecord) refuseHere("refers to " + describe(target) + " as " + describe(reference));
    } else if (!mayRefer(reference, target)) {
        refuseHere("refers to " + describe(target) + " as " + describe(reference));
    }
}

void CodeCheck::checkReference(const Place& place) const {
    const auto reference = typeOf(place.word.a), typeB = typeOf(place.word.b);
    const auto& shapes = tables_.shapes;
    const auto refersInto = [&](const SlotSequence& variables, std::uint32_t slot) {
        checkRefersTo(reference, shapes.typeAt(variables, slot), shapes.beginsRecord(variables, slot, reference.id));
    };
    switch (place.op()) {
    case Op::RefAt:
    case Op::RefFlat:
        // Bytes are shorter than the slots that hold them; other elements are like slots.
        if (typeB.base == BaseType::Byte || reference != SlotType{slotBase(typeB.base), TypeForm::Reference, typeB.id})
            refuseHere("refers to an element of " + describe(typeB) + " as " + describe(reference));
        return;
    case Op::RefSlot:
        return checkRefersTo(reference, slots_.typeAt(place.word.bc()),
                             slots_.beginsRecord(place.word.bc(), reference.id));
    case Op::RefGlobal: return refersInto(tables_.globals, place.extra());
    case Op::RefField:
        classOfObject(place.word.b, 'B');
        if (tables_.isSource(typeB.id, place.extra())) refuseHere("refers to a field that is WithEvents");
        return refersInto(tables_.fields[typeB.id - 1], place.extra());
    default: break;
    }
    if (typeB.form != TypeForm::Reference || typeB.base != BaseType::Record)
        refuseHere("has " + describe(typeB) + " as operand B, which is no record");
    refersInto(shapes.fieldsOf(typeB.id), place.extra());
}

void CodeCheck::checkThrough(const Place& place) const {
    const auto typeA = typeOf(place.word.a), typeB = typeOf(place.word.b);
    SlotType target;
    if (typeB.form == TypeForm::Reference && typeB.base == BaseType::Record) {
        target = tables_.shapes.typeAt(tables_.shapes.fieldsOf(typeB.id), place.word.c);
    } else {
        if (place.word.c != 0) refuseHere("has a slot of a record that " + describe(typeB) + " does not refer to");
        target = {typeB.base, typeB.form == TypeForm::Reference ? TypeForm::Value : TypeForm::Array, typeB.id};
    }
    const auto first = place.info().operands[0];
    const bool loads = first == Operand::WriteLong || first == Operand::WriteDouble ||
                       first == Operand::WriteCurrency || first == Operand::WriteText ||
                       first == Operand::WriteObject || first == Operand::WriteVariant || first == Operand::WriteArray;
    if (loads)
        checkAssigns(typeA, asSlot(target));
    else
        checkAssigns(asSlot(target), typeA);
}

void CodeCheck::checkRecords(const Place& place) const {
    const auto type = typeOf(place.word.a);
    if (type.form != TypeForm::Reference || type.base != BaseType::Record)
        refuseHere("has " + describe(type) + " as operand A, which is no record");
    if (place.op() == Op::CopyRecord) checkAssigns(type, typeOf(place.word.b));
}

void CodeCheck::checkVariable(const Place& place) const {
    const bool isWide = place.op() == Op::LoadWide || place.op() == Op::StoreWide;
    const auto type =
        isWide ? slots_.typeAt(place.word.bc()) : asSlot(tables_.shapes.typeAt(tables_.globals, place.extra()));
    const bool loads = place.op() == Op::LoadWide || place.op() == Op::LoadGlobal;
    if (loads)
        checkAssigns(typeOf(place.word.a), type);
    else
        checkAssigns(type, typeOf(place.word.a));
}

const ClassInfo& CodeCheck::classOfObject(std::uint8_t slot, char operand) const {
    const auto type = typeOf(slot);
    if (type.id == 0) refuseHere(std::string("has an object of any class as operand ") + operand);
    return code_.classes[type.id - 1];
}

void CodeCheck::checkField(const Place& place) const {
    classOfObject(place.word.b, 'B');
    const auto number = typeOf(place.word.b).id;
    const auto field = asSlot(tables_.shapes.typeAt(tables_.fields[number - 1], place.word.c));
    if (place.op() == Op::LoadField) return checkAssigns(typeOf(place.word.a), field);
    // The source must know what it loses and gets.
    if (place.op() == Op::StoreField && tables_.isSource(number, place.word.c))
        refuseHere("assigns to a field that is WithEvents");
    checkAssigns(field, typeOf(place.word.a));
}

void CodeCheck::checkObject(const Place& place) const {
    if (place.info().extra == Extra::Class || place.info().operands[2] == Operand::OffsetC) return;
    if (const auto type = typeOf(place.word.a); type.id != 0)
        refuseHere("assigns an object of any class to " + describe(type));
}

void CodeCheck::checkClass(const Place& place) const {
    const auto number = place.extra();
    if (number == 0 || number > code_.classes.size())
        refuseHere("names class " + std::to_string(number) + ", which does not exist");
    if (place.info().operands[0] != Operand::WriteObject) return;
    const auto type = typeOf(place.word.a);
    // A slot of the interface's own class would allow access to fields that the object does not have.
    if (place.op() == Op::CheckInterface && type.id != 0)
        refuseHere("assigns an object that implements " + className(code_, number) + " to " + describe(type));
    checkAssigns(type, {BaseType::Object, TypeForm::Value, number});
}

} // namespace image
