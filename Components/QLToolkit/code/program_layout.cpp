#include "Components/QLToolkit/code/program_layout.h"

namespace qltoolkit {

using image::BaseType;
using image::SlotType;
using image::TypeForm;

ProgramLayout::ProgramLayout(Program& program) : program_(program), functions_(program.symbols) {
    numberClasses();
    numberRecords();
    numberProcedures();
    placeVariables();
}

std::uint32_t ProgramLayout::classOf(std::uint32_t scope) const {
    const auto found = classes_.find(scope);
    return found == classes_.end() ? 0 : found->second;
}

std::uint32_t ProgramLayout::exactClass(const Type& type) const { return isInterface(type.id) ? 0 : classOf(type.id); }

std::uint32_t ProgramLayout::numberOf(const Type& type, BaseType base) const {
    return base == BaseType::Object ? exactClass(type) : recordOf(type.id);
}

SlotType ProgramLayout::referenceTo(const Type& type) const {
    SlotType result = slotTypeOf(type);
    result.form = type.isArray ? TypeForm::ArrayReference : TypeForm::Reference;
    return result;
}

std::uint32_t ProgramLayout::slotsOf(const Type& type) const {
    if (type.value == ValueType::Record && !type.isArray) return recordSlots_.at(type.id);
    return image::slotsOf(slotTypeOf(type));
}

void ProgramLayout::numberClasses() {
    std::uint32_t number = 0;
    for (const auto& module : program_.modules) {
        if (module.scope->isClass()) classes_.emplace(module.scope->number, ++number);
        for (const auto* each : module.scope->interfaces) interfaces_.insert(each->number);
    }
}

// Records that this one contains get lower numbers. The check of declarations has refused circles.
void ProgramLayout::numberRecord(const Scope& scope, Constants& constants) {
    if (records_.contains(scope.number)) return;
    std::vector<const Entity*> fields;
    scope.names.forEach([&](Symbol, Entity& field) { fields.push_back(&field); });
    std::sort(fields.begin(), fields.end(), [](const Entity* a, const Entity* b) { return a->pos < b->pos; });
    for (const auto* field : fields)
        if (field->type.value == ValueType::Record) numberRecord(program_.scope(field->type.id), constants);
    image::RecordLayout layout;
    MemoryExtent memory;
    std::uint32_t slots = 0;
    bool isPrepared = false;
    for (const auto* field : fields) {
        addField(memory, *field, field->type.value == ValueType::Record ? memory_.at(field->type.id) : MemoryExtent{});
        field->place = slots;
        slots += slotsOf(field->type);
        image::RecordField made{typeOf(field->type), image::kNone, 0};
        if (field->type.value == ValueType::FixedString) made.fixedLength = field->type.id;
        if (field->isStaticArray) {
            made.array = static_cast<std::uint32_t>(arrays_.size());
            arrays_.push_back(shapeOf(*field, *scope.source, constants));
        }
        isPrepared |= field->isStaticArray || (field->type.value == ValueType::FixedString && !field->type.isArray) ||
                      (field->type.value == ValueType::Record && !field->type.isArray && needsPreparation(field->type));
        layout.fields.push_back(made);
    }
    records_.emplace(scope.number, static_cast<std::uint32_t>(layouts_.size()));
    recordSlots_.emplace(scope.number, slots);
    addEnd(memory);
    memory_.emplace(scope.number, memory);
    if (isPrepared) prepared_.insert(scope.number);
    layouts_.push_back(std::move(layout));
}

void ProgramLayout::numberRecords() {
    Constants constants{program_};
    for (const auto& module : program_.modules)
        for (const auto& [entity, decl] : module.records) numberRecord(*entity->inner, constants);
}

image::ArrayShape ProgramLayout::shapeOf(const Entity& entity, SourceModule& module, Constants& constants,
                                         LocalConstants local) const {
    Type element = entity.type;
    element.isArray = false;
    image::ArrayShape shape{typeOf(element), element.value == ValueType::FixedString ? element.id : 0, {}};
    for (const auto& bound : entity.declaration->bounds) {
        const auto lower = bound.lower ? constants.longOf(*bound.lower, module, local)
                                       : std::optional(static_cast<basic::Long>(module.arrayBase));
        const auto upper = constants.longOf(*bound.upper, module, local);
        shape.bounds.push_back({lower.value_or(0), upper.value_or(0)});
    }
    return shape;
}

/// In the order in which their code is made, but for those that prepare a module: they come last.
void ProgramLayout::numberProcedures() {
    for (const auto& module : program_.modules) {
        for (const auto& [entity, decl] : module.callables) {
            if (decl->kind != DeclKind::Procedure) continue;
            for (const auto* callable : {entity->get, entity->let, entity->set})
                if (callable && callable->body == decl) callable->number = procedures_++;
        }
        if (!module.scope->isClass()) continue;
        for (const auto& [field, decl] : module.variables) {
            if (!isLateField(*field)) continue;
            if (isInterface(module.scope->number))
                numberAccess(*field);
            else if (makesObject(*field))
                numberReader(*field);
        }
    }
    firstPrepare_ = procedures_;
    procedures_ += static_cast<std::uint32_t>(program_.modules.size());
}

void ProgramLayout::numberAccess(const Entity& field) {
    auto& access = accesses_[&field];
    access.property.kind = EntityKind::Property;
    access.property.isPublic = true;
    access.property.name = field.name;
    access.property.type = field.type;
    access.property.owner = field.owner;
    const auto add = [&](Callable& callable) {
        callable.result = field.type;
        callable.number = procedures_++;
        return &callable;
    };
    access.property.get = add(access.get);
    if (field.type.value != ValueType::Object) access.property.let = add(access.let);
    if (mayBeSet(field.type.value)) access.property.set = add(access.set);
}

void ProgramLayout::numberReader(const Entity& field) {
    auto& reader = readers_[&field];
    reader.result = field.type;
    reader.number = procedures_++;
}

void ProgramLayout::placeVariables() {
    for (const auto& module : program_.modules) {
        const bool isClass = module.scope->isClass();
        std::uint32_t fields = 0;
        std::uint32_t& next = isClass ? fields : globalSlots_;
        for (const auto& [entity, decl] : module.variables) {
            entity->place = next;
            next += slotsOf(entity->type);
            if (!isClass)
                globals_.push_back({entity->type.value == ValueType::Record && !entity->type.isArray
                                        ? typeOf(entity->type)
                                        : slotTypeOf(entity->type),
                                    false});
        }
        if (!isClass) continue;
        fieldSlots_.emplace(module.scope->number, fields);
        if (!module.scope->predeclared) continue;
        predeclared_.emplace(module.scope->number, globalSlots_++);
        globals_.push_back({slotTypeOf({ValueType::Object, false, false, module.scope->number}), false});
    }
}

} // namespace qltoolkit
