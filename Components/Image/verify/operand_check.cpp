#include "Components/Image/verify/code_check.h"
#include <bit>
#include <cmath>

namespace image {

namespace {

std::string operandName(std::size_t index) { return std::string("operand ") + static_cast<char>('A' + index); }

bool isWholeKind(BaseType type) { return slotBase(type) == BaseType::Long; }
bool isFloatKind(BaseType type) { return slotBase(type) == BaseType::Double; }

/// Whether a value is one of those that the instruction can have instead of a slot.
bool isChoice(Op op, std::uint8_t value) {
    constexpr std::uint8_t kEmpty = 0, kNull = 1, kMissing = 10;
    if (op == Op::LoadKind) return value == kEmpty || value == kNull || value == kMissing;
    return value <= 1;
}

} // namespace

void CodeCheck::refuseOperands(const Place& place) const {
    const std::uint8_t values[] = {place.word.a, place.word.b, place.word.c};
    const auto& masks = kOperandMasks[place.word.op];
    for (std::size_t i = 0; i < 3; ++i) {
        if ((masks.zeros >> (8 * (i + 1)) & 0xFF) != 0 && values[i] != 0) refuseHere(operandName(i) + " must be 0");
        if ((masks.sets[i] >> slots_.classOfSlot(values[i]) & 1) != 0) continue;
        const auto slot = "names slot " + std::to_string(values[i]);
        const auto type = values[i] == kNoSlot ? SlotType{} : typeOf(values[i]);
        if (type == SlotType{}) refuseHere(operandName(i) + " " + slot + ", which does not exist");
        refuseHere(operandName(i) + " " + slot + ", which is " + describe(type));
    }
    refuseHere("is damaged");
}

void CodeCheck::check(const Place& place) {
    for (const auto operand : place.info().operands) {
        switch (operand) {
        case Operand::NumberB:
        case Operand::NumberC:
        case Operand::NumberBC: checkNumber(place); break;
        case Operand::BaseType: checkBaseType(place); break;
        case Operand::Unsigned: checkUnsigned(place); break;
        default: break;
        }
    }
    checkRelation(place);
    checkExtra(place);
}

void CodeCheck::checkUnsigned(const Place& place) const {
    if (!isChoice(place.op(), place.word.b)) refuseHere("has " + std::to_string(place.word.b) + " as operand B");
}

void CodeCheck::checkNumber(const Place& place) const {
    const auto& operands = place.info().operands;
    const std::uint32_t offset = operands[1] == Operand::NumberBC  ? place.word.bc()
                                 : operands[1] == Operand::NumberB ? place.word.b
                                                                   : place.word.c;
    const auto index = std::uint64_t{procedure_->numbers} + offset;
    if (index >= code_.numbers.size())
        refuseHere("names constant " + std::to_string(offset) + ", which does not exist");
    if (place.op() != Op::LoadCurrency && !std::isfinite(std::bit_cast<double>(code_.numbers[index])))
        refuseHere("names constant " + std::to_string(offset) + ", which is not finite");
}

void CodeCheck::checkBaseType(const Place& place) const {
    const auto& operands = place.info().operands;
    const bool isWhole = operands[0] == Operand::WriteLong || operands[1] == Operand::ReadLong;
    const bool mayTakeErrors = place.op() == Op::VariantToLong || place.op() == Op::VariantToFloat;
    const auto number = mayTakeErrors ? place.word.c & ~kTakesErrors : std::uint32_t{place.word.c};
    const auto kind = static_cast<BaseType>(number);
    if (number >= kBaseTypes || !(isWhole ? isWholeKind(kind) : isFloatKind(kind)))
        refuseHere("has " + std::to_string(place.word.c) + " as the type in operand C");
}

void CodeCheck::checkRelation(const Place& place) const {
    const auto typeA = typeOf(place.word.a), typeB = typeOf(place.word.b);
    switch (place.op()) {
    case Op::Move:
    case Op::CopyObject:
    case Op::TakeObject:
    case Op::CopyArray:
    case Op::TakeArray:
    case Op::ShareArray:
    case Op::CopyRef: return checkAssigns(typeA, typeB);
    case Op::LoadObjectAt:
    case Op::LoadObjectFlat: return checkAssigns(typeA, {BaseType::Object, TypeForm::Value, typeB.id});
    case Op::StoreObjectAt:
    case Op::StoreObjectFlat: return checkAssigns({BaseType::Object, TypeForm::Value, typeB.id}, typeA);
    case Op::LoadWide:
    case Op::StoreWide:
    case Op::LoadGlobal:
    case Op::StoreGlobal: return checkVariable(place);
    case Op::LoadField:
    case Op::StoreField:
    case Op::SetSource: return checkField(place);
    case Op::CopyRecord:
    case Op::PrepareRecord: return checkRecords(place);
    case Op::RefAt:
    case Op::RefFlat:
    case Op::RefSlot:
    case Op::RefGlobal:
    case Op::RefField:
    case Op::RefPart: return checkReference(place);
    default: break;
    }
    if (place.info().operands[2] == Operand::OffsetC) checkThrough(place);
    if (place.info().operands[0] == Operand::WriteObject) checkObject(place);
}

void CodeCheck::checkExtra(const Place& place) {
    switch (place.info().extra) {
    case Extra::Number:
        if ((place.op() == Op::LoadNulls || place.op() == Op::FixText) && place.extra() > kLongestFixedText)
            refuseHere("has " + std::to_string(place.extra()) + " characters");
        return;
    case Extra::Text: return checkText(place.extra());
    case Extra::Table:
        for (std::size_t i = 1; i < place.words.size(); ++i) markTarget(place.words[i]);
        return;
    case Extra::Slots:
        if (place.op() == Op::CallByName) {
            if (place.word.c < 2) refuseHere("has no name or type of call");
            return checkSlots(place, 1, place.word.c, BaseType::Variant);
        }
        if (place.op() == Op::ReDim) return checkIndexes(place, 1, std::size_t{2} * place.word.c, BaseType::Long);
        return checkIndexes(place, 1, place.word.c, place.op() == Op::FindElement ? BaseType::Long : BaseType::Variant);
    case Extra::TypeAndSlots:
        checkVariantArray(place);
        return checkIndexes(place, 2, std::size_t{2} * place.word.c, BaseType::Long);
    case Extra::Operation: return checkOperation(place);
    case Extra::Array: return checkArray(place);
    case Extra::Class: return checkClass(place);
    case Extra::Procedure: return checkCall(place);
    case Extra::Interface: return checkInterface(place);
    case Extra::Import: return checkImport(place);
    case Extra::Event: return checkEvent(place);
    case Extra::Late: return checkLate(place);
    case Extra::None:
    case Extra::Jump:   // see markTarget
    case Extra::Global: // see checkRelation
    case Extra::Field:
    case Extra::Offset: break;
    }
    resumes_ =
        resumes_ || place.op() == Op::OnErrorResumeNext || place.op() == Op::Resume || place.op() == Op::ResumeNext;
}

void CodeCheck::checkText(std::uint32_t text) const {
    if (text >= code_.texts.size()) refuseHere("names text " + std::to_string(text) + ", which does not exist");
}

void CodeCheck::checkIndexes(const Place& place, std::size_t after, std::size_t count, BaseType type) const {
    if (place.word.c == 0 || place.word.c > kMostDimensions)
        refuseHere("has " + std::to_string(place.word.c) + " dimensions");
    checkSlots(place, after, count, type);
}

void CodeCheck::checkSlots(const Place& place, std::size_t after, std::size_t count, BaseType type) const {
    for (std::size_t i = 0; i < count; ++i) {
        const auto slot = place.half(after, i);
        if (const auto found = slots_.typeAt(slot); found != SlotType{type})
            refuseHere("names slot " + std::to_string(slot) + ", which is " + describe(found) + " and not " +
                       describe({type}));
    }
    checkLastHalf(place, after, count);
}

void CodeCheck::checkLastHalf(const Place& place, std::size_t after, std::size_t count) const {
    if (count % 2 != 0 && place.half(after, count) != 0) refuseHere("has half a word that must be 0");
}

void CodeCheck::checkVariantArray(const Place& place) const {
    const auto packed = place.extra();
    const auto base = packed & 0xFF;
    const bool isKnown = base > std::uint32_t(BaseType::None) && base < std::uint32_t(BaseType::Record);
    const auto id = packed >> 16;
    const bool hasClass = isKnown && static_cast<BaseType>(base) == BaseType::Object && id <= code_.classes.size();
    if (!isKnown || (packed >> 8 & 0xFF) != 0 || (id != 0 && !hasClass)) refuseHere("has an unknown type of elements");
}

void CodeCheck::checkOperation(const Place& place) const {
    const auto packed = place.extra();
    const auto op = packed & 0xFF;
    const bool isUnary = op >= std::uint32_t(VariantOperator::Negate) && op < kVariantOperators;
    const bool isBinary = op < std::uint32_t(VariantOperator::Negate);
    if (!(place.op() == Op::OperateUnary ? isUnary : isBinary)) refuseHere("has an unknown operator");
    const auto isOperand = [](std::uint32_t type) { return type < std::uint32_t(BaseType::Record); };
    if ((packed >> 8 & 0xFF) > 1 || !isOperand(packed >> 16 & 0xFF) || !isOperand(packed >> 24))
        refuseHere("has unknown types of operands");
}

void CodeCheck::checkArray(const Place& place) const {
    const auto number = place.extra();
    if (number >= code_.arrays.size()) refuseHere("names array " + std::to_string(number) + ", which does not exist");
    const auto element = code_.arrays[number].element;
    checkAssigns(typeOf(place.word.a), {element.base, TypeForm::Array, element.id});
}

} // namespace image
