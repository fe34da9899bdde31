#include "Components/Tamarik/vm/program.h"
#include "Components/Tamarik/values/array_block.h"
#include <algorithm>

namespace tamarik {

using image::BaseType;
using image::SlotType;
using image::TypeForm;

namespace {

bool isRecord(SlotType type) { return type.base == BaseType::Record && type.form == TypeForm::Value; }

void addOne(RecordShape& shape, std::vector<SlotType>& types, SlotType type) {
    if (isManaged(type)) shape.managed.push_back({shape.slots, managedKind(type)});
    types.push_back(type);
    if (slotsOf(type) == 2) types.push_back({BaseType::Half});
    shape.slots += slotsOf(type);
}

/// Puts the fields of a contained record after those that a shape has so far.
void append(RecordShape& shape, const RecordShape& inner) {
    for (const ManagedSlot& field : inner.managed) shape.managed.push_back({shape.slots + field.slot, field.kind});
    for (PreparedField field : inner.prepared) {
        field.slot += shape.slots;
        shape.prepared.push_back(field);
    }
    shape.slots += inner.slots;
}

} // namespace

ValueKind valueKindOf(SlotType type) {
    if (type.form == TypeForm::Array) return ValueKind::Array;
    if (type.form != TypeForm::Value) return ValueKind::Reference;
    switch (type.base) {
    case BaseType::None: return ValueKind::None;
    case BaseType::Text: return ValueKind::Text;
    case BaseType::Object: return ValueKind::Object;
    case BaseType::Variant: return ValueKind::Variant;
    default: return ValueKind::Number;
    }
}

Program::Program(std::shared_ptr<const image::CodeImage> code, std::string project)
    : code_(std::move(code)), project_(std::move(project)) {
    loadRecords();
    for (const image::SlotVariable& variable : code_->globals) addVariable(globals, globalTypes, variable.type);
    loadProcedures();
    loadClasses();
}

std::string_view Program::text(std::uint32_t number) const {
    return number < code_->texts.size() ? std::string_view(code_->texts[number]) : std::string_view();
}

ElementType Program::elementOf(SlotType array) const {
    ElementType element{{array.base, TypeForm::Value, array.id}};
    if (array.base == BaseType::Record) element.record = &records[array.id];
    return element;
}

void Program::addVariable(RecordShape& shape, std::vector<SlotType>& types, SlotType type) const {
    if (!isRecord(type)) return addOne(shape, types, type);
    // The types of a record's slots are those of its fields.
    for (const image::RecordField& field : code_->records[type.id].fields) {
        SlotType inner = field.type;
        if (inner.form == TypeForm::Value && !isRecord(inner)) inner.base = slotBase(inner.base);
        addVariable(shape, types, inner);
    }
}

void Program::loadRecords() {
    arrays.reserve(code_->arrays.size());
    records.resize(code_->records.size());
    for (const image::ArrayShape& shape : code_->arrays) {
        FixedArray array{elementOf(shape.element), {}};
        array.element.fixedLength = shape.fixedLength;
        array.bounds = shape.bounds;
        arrays.push_back(std::move(array));
    }
    for (std::size_t i = 0; i < records.size(); ++i) {
        std::vector<SlotType> types;
        RecordShape& shape = records[i];
        for (const image::RecordField& field : code_->records[i].fields) {
            if (isRecord(field.type)) {
                append(shape, records[field.type.id]);
                continue;
            }
            if (field.array != image::kNone)
                shape.prepared.push_back({shape.slots, &arrays[field.array], 0});
            else if (field.fixedLength != 0)
                shape.prepared.push_back({shape.slots, nullptr, field.fixedLength});
            addOne(shape, types, field.type);
        }
    }
}

LoadedProcedure Program::load(const image::Procedure& procedure) const {
    LoadedProcedure loaded;
    RecordShape shape;
    for (const image::SlotVariable& variable : procedure.variables) {
        const std::size_t before = shape.managed.size();
        addVariable(shape, loaded.types, variable.type);
        if (variable.isTemporary)
            loaded.temporaries.insert(loaded.temporaries.end(), shape.managed.begin() + static_cast<long>(before),
                                      shape.managed.end());
    }
    for (const SlotType type : loaded.types) loaded.kinds.push_back(valueKindOf(type));
    loaded.code = code_->code.data() + procedure.code;
    loaded.numbers = reinterpret_cast<const Slot*>(code_->numbers.data()) + procedure.numbers;
    loaded.slots = std::max<std::uint32_t>(1, (shape.slots + kSlotsOfFrame - 1) / kSlotsOfFrame) * kSlotsOfFrame;
    loaded.managed = std::move(shape.managed);
    for (const ManagedSlot& each : loaded.managed)
        loaded.holders.push_back(each.kind == Managed::Reference ? each.slot + 1 : each.slot);
    if (procedure.resultSlot != image::kNoSlot) {
        loaded.resultSlot = procedure.resultSlot;
        loaded.result = valueKindOf(loaded.types[procedure.resultSlot]);
        loaded.returnsManaged = loaded.result != ValueKind::Number;
    }
    loaded.info = &procedure;
    return loaded;
}

void Program::loadProcedures() {
    procedures.reserve(code_->procedures.size());
    for (const image::Procedure& procedure : code_->procedures) procedures.push_back(load(procedure));
}

void Program::loadClasses() {
    for (const image::ClassInfo& info : code_->classes) {
        LoadedClass loaded{&info, {}};
        std::vector<SlotType> types;
        for (const image::SlotVariable& field : info.fields) addVariable(loaded.fields, types, field.type);
        classes.push_back(std::move(loaded));
    }
}

} // namespace tamarik
