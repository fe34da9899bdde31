// How variables, elements, fields and properties are read and assigned, and references to them.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::LateUse;
using image::Op;

namespace {

bool isWholeArray(const Type& type) { return type.isArray; }

Op elementOp(ValueType type, bool isStore, bool isFlat) {
    const auto pick = [&](Op load, Op store, Op loadFlat, Op storeFlat) {
        if (isFlat) return isStore ? storeFlat : loadFlat;
        return isStore ? store : load;
    };
    switch (type) {
    case ValueType::Byte: return pick(Op::LoadByteAt, Op::StoreByteAt, Op::LoadByteFlat, Op::StoreByteFlat);
    case ValueType::Boolean:
    case ValueType::Integer:
    case ValueType::Long: return pick(Op::LoadLongAt, Op::StoreLongAt, Op::LoadLongFlat, Op::StoreLongFlat);
    case ValueType::Single:
    case ValueType::Double:
    case ValueType::Date: return pick(Op::LoadFloatAt, Op::StoreFloatAt, Op::LoadFloatFlat, Op::StoreFloatFlat);
    case ValueType::Currency:
        return pick(Op::LoadCurrencyAt, Op::StoreCurrencyAt, Op::LoadCurrencyFlat, Op::StoreCurrencyFlat);
    case ValueType::String:
    case ValueType::FixedString: return pick(Op::LoadTextAt, Op::StoreTextAt, Op::LoadTextFlat, Op::StoreTextFlat);
    case ValueType::Object: return pick(Op::LoadObjectAt, Op::StoreObjectAt, Op::LoadObjectFlat, Op::StoreObjectFlat);
    default: return pick(Op::LoadVariantAt, Op::StoreVariantAt, Op::LoadVariantFlat, Op::StoreVariantFlat);
    }
}

Op refOp(const Type& type, bool isStore) {
    if (type.isArray) return isStore ? Op::StoreArrayRef : Op::LoadArrayRef;
    switch (type.value) {
    case ValueType::Boolean:
    case ValueType::Byte:
    case ValueType::Integer:
    case ValueType::Long: return isStore ? Op::StoreLongRef : Op::LoadLongRef;
    case ValueType::Single:
    case ValueType::Double:
    case ValueType::Date: return isStore ? Op::StoreFloatRef : Op::LoadFloatRef;
    case ValueType::Currency: return isStore ? Op::StoreCurrencyRef : Op::LoadCurrencyRef;
    case ValueType::String:
    case ValueType::FixedString: return isStore ? Op::StoreTextRef : Op::LoadTextRef;
    case ValueType::Object: return isStore ? Op::StoreObjectRef : Op::LoadObjectRef;
    default: return isStore ? Op::StoreVariantRef : Op::LoadVariantRef;
    }
}

} // namespace

/// `target` is a slot that may receive the value, or not.
Value Emitter::load(const Place& place, std::optional<std::uint32_t> target) {
    static const Span<Argument> kNoArguments{};
    const auto& given = place.arguments ? *place.arguments : kNoArguments;
    switch (place.kind) {
    case PlaceKind::Slot: {
        if (place.isNew) needObject(place.slot, place.type);
        return {place.type, place.slot, place.isTemporary, place.isTemporary ? nullptr : place.entity};
    }
    case PlaceKind::Property:
        return call(*place.entity->get, given, place.object.type.value == ValueType::Object ? &place.object : nullptr,
                    *place.entity);
    case PlaceKind::Late: return lateCall(place, LateUse::Get, nullptr, true);
    case PlaceKind::VariantElement: {
        if (place.indexes > image::kMostDimensions) return fail(basic::kSubscriptOutOfRange, {});
        const Value result{{ValueType::Variant}, temporary({ValueType::Variant})};
        out_.emit(place.isFlat ? Op::VariantRefAt : Op::VariantAt, result.slot, place.object.slot, place.indexes);
        out_.halves(indexesOf(place));
        return result;
    }
    default: break;
    }
    if (isWholeArray(place.type)) return array(place);
    if (place.type.value == ValueType::Record) return fail(basic::kTypeMismatch, {});
    const bool isDirect = target && !place.isNew && slots_.typeAt(*target) == layout_.slotTypeOf(place.type);
    Value result{place.type, isDirect ? *target : temporary(place.type)};
    if (result.type.value == ValueType::Unknown) result.type = {};
    loadInto(place, result.slot);
    if (place.isNew) {
        needObject(result.slot, place.type);
        Place whole = place;
        whole.isNew = false;
        store(whole, {result.type, result.slot, false});
    }
    return result;
}

/// Makes the object of a variable that is declared As New.
void Emitter::needObject(std::uint32_t slot, const Type& type) {
    if (const auto number = layout_.classOf(type.id)) {
        out_.emit(Op::NeedObject, slot);
        out_.extra(number);
    } else {
        out_.emit(Op::NeedLibraryObject, slot);
        out_.extra(out_.module().text(std::string(spelling(layout_.program().scope(type.id).name))), FixKind::Text);
    }
}

/// Reads a variable, element or field into a slot of its type.
void Emitter::loadInto(const Place& place, std::uint32_t slot) {
    switch (place.kind) {
    case PlaceKind::Wide: out_.emitWide(Op::LoadWide, slot, place.slot); break;
    case PlaceKind::Global:
        out_.emit(Op::LoadGlobal, slot);
        out_.extra(place.offset);
        break;
    case PlaceKind::Static:
        out_.emit(Op::LoadGlobal, slot);
        out_.extra(place.offset, FixKind::Static);
        break;
    case PlaceKind::Field:
        if (place.offset <= 0xFF) {
            out_.emit(Op::LoadField, slot, place.slot, place.offset);
        } else {
            out_.emit(refOp(place.type, false), slot, reference(place).slot, 0);
        }
        break;
    case PlaceKind::Element:
        out_.emit(elementOp(place.type.value, false, place.isFlat), slot, place.slot, place.index);
        break;
    case PlaceKind::Ref:
        if (place.offset <= 0xFF)
            out_.emit(refOp(place.type, false), slot, place.slot, place.offset);
        else
            out_.emit(refOp(place.type, false), slot, reference(place).slot, 0);
        break;
    default: break;
    }
}

/// Assigns a value of the place's own type.
void Emitter::store(const Place& place, const Value& value) {
    switch (place.kind) {
    case PlaceKind::Slot: (void)moved(value, place.slot); break;
    case PlaceKind::Wide: out_.emitWide(Op::StoreWide, value.slot, place.slot); break;
    case PlaceKind::Global:
        out_.emit(Op::StoreGlobal, value.slot);
        out_.extra(place.offset);
        break;
    case PlaceKind::Static:
        out_.emit(Op::StoreGlobal, value.slot);
        out_.extra(place.offset, FixKind::Static);
        break;
    case PlaceKind::Field:
        if (place.offset <= 0xFF)
            out_.emit(Op::StoreField, value.slot, place.slot, place.offset);
        else
            out_.emit(refOp(place.type, true), value.slot, reference(place).slot, 0);
        break;
    case PlaceKind::Element:
        out_.emit(elementOp(place.type.value, true, place.isFlat), value.slot, place.slot, place.index);
        break;
    case PlaceKind::Ref:
        if (place.offset <= 0xFF)
            out_.emit(refOp(place.type, true), value.slot, place.slot, place.offset);
        else
            out_.emit(refOp(place.type, true), value.slot, reference(place).slot, 0);
        break;
    case PlaceKind::VariantElement: {
        if (place.indexes > image::kMostDimensions) {
            (void)fail(basic::kSubscriptOutOfRange, {});
            break;
        }
        out_.emit(place.isFlat ? Op::StoreVariantRefElement : Op::StoreVariantElement, value.slot, place.object.slot,
                  place.indexes);
        out_.halves(indexesOf(place));
        break;
    }
    case PlaceKind::Property:
    case PlaceKind::Late: break;
    }
}

/// Whether a reference to the place can be passed.
bool Emitter::isAddressable(const Place& place) const {
    if (place.type.value == ValueType::Byte && place.kind == PlaceKind::Element) return false;
    if (place.withEvents && place.kind == PlaceKind::Field) return false; // an assignment connects its events
    return place.kind <= PlaceKind::Element && !place.isTemporary;
}

/// A temporary that refers to a place. Of a whole array, to the variable that holds it.
Value Emitter::reference(const Place& place) {
    if (place.kind == PlaceKind::Element) return referenceAt(place);
    const auto type = layout_.referenceTo(place.type);
    if (place.kind == PlaceKind::Ref && place.offset == 0 && !place.isPart) return {place.type, place.slot, false};
    const Value result{place.type, slots_.temporary(type)};
    switch (place.kind) {
    case PlaceKind::Slot:
    case PlaceKind::Wide: out_.emitWide(Op::RefSlot, result.slot, place.slot); break;
    case PlaceKind::Global:
        out_.emit(Op::RefGlobal, result.slot);
        out_.extra(place.offset);
        break;
    case PlaceKind::Static:
        out_.emit(Op::RefGlobal, result.slot);
        out_.extra(place.offset, FixKind::Static);
        break;
    case PlaceKind::Field:
        out_.emit(Op::RefField, result.slot, place.slot);
        out_.extra(place.offset);
        break;
    default: out_.emit(Op::RefPart, result.slot, place.slot); out_.extra(place.offset);
    }
    return result;
}

/// A reference to the record that an expression names or returns.
Value Emitter::recordOf(const Expr& expr) {
    const Place found = place(expr);
    const bool isReturned = found.kind == PlaceKind::Property;
    return reference(isReturned ? resultPlace(load(found)) : found);
}

Value Emitter::referenceAt(const Place& element) {
    const Value result{element.type, slots_.temporary(layout_.referenceTo(element.type))};
    out_.emit(element.isFlat ? Op::RefFlat : Op::RefAt, result.slot, element.slot, element.index);
    return result;
}

/// The slot through which an array is reached, which may be shared with its variable.
Value Emitter::array(const Place& place) {
    if (place.kind == PlaceKind::Slot) return {place.type, place.slot, place.isTemporary};
    if (place.kind == PlaceKind::Property || place.kind == PlaceKind::Late) {
        const Value held = load(place);
        if (held.type.isArray) return held;
        const Value result{place.type, temporary(place.type)};
        out_.emit(Op::ShareVariantArray, result.slot, toVariant(held, {}).slot);
        return result;
    }
    const Value result{place.type, temporary(place.type), false};
    loadInto(place, result.slot);
    return result;
}

} // namespace qltoolkit
