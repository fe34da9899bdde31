#include "Components/Tamarik/vm/slot_tags.h"
#ifdef FERNWICK_SLOT_TAGS
#include "Components/Tamarik/vm/array_operations.h"
#include "Components/Tamarik/vm/execution.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tamarik {

namespace {

using image::BaseType;
using image::Op;
using image::Operand;
using image::Pass;
using image::SlotType;
using image::TypeForm;

constexpr image::TypeClass kUnset = 0;

constexpr bool isWritten(Operand operand) {
    switch (operand) {
    case Operand::WriteLong:
    case Operand::WriteDouble:
    case Operand::WriteCurrency:
    case Operand::WriteText:
    case Operand::WriteVariant:
    case Operand::WriteObject:
    case Operand::WriteArray:
    case Operand::WriteRef:
    case Operand::WriteValue:
    case Operand::WriteAny:
    case Operand::WriteNumber:
    case Operand::Result:
    case Operand::ResultVariant: return true;
    default: return false;
    }
}

bool isCall(Op op) { return op == Op::Call || op == Op::CallMethod || op == Op::CallInterface; }

bool isText(const TextBlock* text) { return !text || (text->count > 0 && text->bytes <= text->room); }

bool isObject(const Object* object, std::uint32_t classNumber) {
    if (!object) return true;
    return object->kind == Counted::Kind::Object && object->count > 0 &&
           (classNumber == 0 || object->classNumber == classNumber);
}

bool isArray(const ArrayBlock* array, SlotType type) {
    if (!array) return true;
    const SlotType element = array->element.type;
    return array->kind == Counted::Kind::Array && array->count > 0 && element.base == type.base &&
           element.id == type.id && (array->data != nullptr || array->size == 0);
}

bool isVariant(const Variant& v) {
    if (v.isArray()) return !v.array || (v.array->kind == Counted::Kind::Array && v.array->count > 0);
    switch (v.kind) {
    case kString: return isText(v.text);
    case kObject: return isObject(v.object, 0);
    case kEmpty:
    case kNull:
    case kInteger:
    case kLong:
    case kSingle:
    case kDouble:
    case kCurrency:
    case kDate:
    case kError:
    case kBoolean:
    case kDecimal:
    case kByte: return true;
    default: return false;
    }
}

/// A reference into an object or array holds its owner, and points into it.
bool isReference(const Slot* slot, const Execution& m) {
    const Counted* const owner = slot[1].owner;
    const auto* const pointer = reinterpret_cast<const char*>(slot[0].pointer);
    if (!pointer) return !owner;
    if (!owner) return true;
    const void* first = nullptr;
    std::size_t bytes = 0;
    if (owner->kind == Counted::Kind::Array) {
        const auto& array = *static_cast<const ArrayBlock*>(owner);
        if (array.locks == 0 || array.hasBytes()) return false;
        first = array.data;
        bytes = std::size_t{array.size} * array.elementBytes;
    } else {
        auto* const object = static_cast<Object*>(const_cast<Counted*>(owner));
        if (object->classNumber == 0) return false;
        first = static_cast<Instance*>(object)->fields();
        bytes = m.program->classes[object->classNumber - 1].fields.slots * sizeof(Slot);
    }
    return owner->count > 0 && pointer >= first && pointer < static_cast<const char*>(first) + bytes;
}

} // namespace

void SlotTags::require(const At& at, bool holds, const char* what) const {
    if (holds) return;
    const image::Word word(*at.ip);
    std::fprintf(stderr, "slot tags: %s %u %u %u: %s\n", image::kInstructions[word.op].name.data(), word.a, word.b,
                 word.c, what);
    std::abort();
}

image::TypeClass SlotTags::tagOf(const At& at, std::uint32_t slot) const {
    require(at, slot < at.frame.procedure->slots, "a slot is outside of the frame");
    return tags_[static_cast<std::size_t>(at.frame.base - at.stack) + slot];
}

void SlotTags::checkValue(const At& at, const Slot* slot, SlotType type) const {
    if (type.form == TypeForm::Array) return require(at, isArray(slot->array, type), "no array of its type");
    if (type.form != TypeForm::Value) return require(at, isReference(slot, at.m), "no reference");
    if (type.base == BaseType::Text) require(at, isText(slot->text), "no text");
    if (type.base == BaseType::Object) require(at, isObject(slot->object, type.id), "no object of its class");
    if (type.base == BaseType::Variant) require(at, isVariant(variantAt(slot)), "no Variant");
}

void SlotTags::checkOperand(const At& at, Operand operand, std::uint32_t slot) {
    const image::TypeSet promised = image::slotsFor(operand);
    const bool isResult = operand == Operand::Result || operand == Operand::ResultVariant;
    if (promised == 0 || (isResult && slot == image::kNoSlot)) return;
    const image::TypeClass tag = tagOf(at, slot);
    require(at, tag == kUnset || (promised >> tag & 1) != 0, "an operand has another type than the table promises");
    const SlotType type = at.frame.procedure->types[slot];
    checkValue(at, at.frame.base + slot, type);
    if (!isWritten(operand)) return;
    const image::TypeClass written = image::classOf(type);
    require(at, (promised >> written & 1) != 0 && (tag == kUnset || tag == written), "a slot changes its type");
    const auto place = static_cast<std::size_t>(at.frame.base - at.stack) + slot;
    tags_[place] = written;
    if (slotsOf(type) == 2) tags_[place + 1] = image::classOf({BaseType::Half});
}

void SlotTags::checkLists(const At& at) const {
    const image::Word word(*at.ip);
    const auto op = static_cast<Op>(word.op);
    const auto& info = image::infoOf(op);
    if (info.extra != image::Extra::Slots && info.extra != image::Extra::TypeAndSlots) return;
    const bool areBounds = op == Op::ReDim || op == Op::ReDimVariant;
    const image::TypeClass wanted =
        image::classOf({areBounds || op == Op::FindElement ? BaseType::Long : BaseType::Variant});
    const std::uint32_t* const words = at.ip + (info.extra == image::Extra::Slots ? 1 : 2);
    for (std::uint32_t i = 0; i < std::uint32_t{word.c} * (areBounds ? 2 : 1); ++i) {
        const image::TypeClass tag = tagOf(at, halfAt(words, i));
        require(at, tag == kUnset || tag == wanted, "an index has another type");
    }
}

/// The caller's tags against the types that the called procedure declares.
void SlotTags::checkArguments(const At& at) const {
    const At caller{at.m, *(&at.frame - 1), last_, at.stack};
    const auto& types = at.frame.procedure->types;
    std::uint32_t target = 0;
    for (std::uint32_t i = 0; i < image::Word(*last_).c; ++i) {
        const std::uint16_t argument = halfAt(last_ + 2, i);
        const SlotType parameter = types[target];
        const image::TypeClass tag = tagOf(caller, image::slotOf(argument));
        image::TypeClass wanted = image::classOf(parameter);
        if (image::passOf(argument) == Pass::Address) {
            const bool isVariable = parameter.form == TypeForm::Reference;
            wanted = parameter.base == BaseType::Record && isVariable ? tag
                     : isVariable ? image::classOf({image::slotBase(parameter.base)})
                                  : image::classOf({parameter.base, TypeForm::Array});
            require(at, parameter.form >= TypeForm::Reference, "the address of a variable for a value");
        }
        require(at, tag == kUnset || tag == wanted, "an argument has another type than the parameter");
        target += slotsOf(parameter);
    }
    require(at, target == 0 || at.frame.procedure->info->parameters == image::Word(*last_).c, "arguments are missing");
}

void SlotTags::enter(const At& at) {
    const auto first = tags_.begin() + (at.frame.base - at.stack);
    std::fill(first, first + at.frame.procedure->slots, kUnset);
    if (top_ == &at.frame - 1 && isCall(static_cast<Op>(*last_ & 0xFF)) && !at.frame.rare) checkArguments(at);
    const auto& info = *at.frame.procedure->info;
    std::uint32_t slot = 0;
    for (std::uint32_t i = 0; i < info.parameters; ++i) {
        const SlotType type = at.frame.procedure->types[slot];
        checkValue(at, at.frame.base + slot, type);
        first[slot] = image::classOf(type);
        if (slotsOf(type) == 2) first[slot + 1] = image::classOf({BaseType::Half});
        slot += slotsOf(type);
    }
}

void SlotTags::check(const Execution& m, const std::uint32_t* ip) noexcept {
    if (tags_.empty()) tags_.resize(static_cast<std::size_t>(m.stackEnd - m.stack));
    const At at{m, *m.frame, ip, m.stack};
    const Slot* const end = m.nextBase();
    for (const Slot* slot = end; slot < end_; ++slot)
        require(at, slot->bits == 0, "something above the top frame is not zero");
    if (&at.frame > top_ || ip == at.frame.procedure->code) enter(at);
    top_ = &at.frame;
    end_ = end;
    last_ = ip;
    const image::Word word(*ip);
    const auto& operands = image::infoOf(static_cast<Op>(word.op)).operands;
    checkOperand(at, operands[0], word.a);
    checkOperand(at, operands[1], word.b);
    checkOperand(at, operands[2], word.c);
    checkLists(at);
}

} // namespace tamarik
#endif
