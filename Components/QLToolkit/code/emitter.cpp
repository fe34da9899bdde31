// Procedures: their variables, how they begin and end.
#include "Components/QLToolkit/code/emitter.h"

namespace qltoolkit {

using image::Op;

namespace {

/// Arrays of modules that a procedure reaches through slots of its own.
constexpr std::size_t kMostShared = 24;

class LoopFinder {
public:
    bool in(const Block& block) {
        for (const auto* stmt = block.first; stmt; stmt = stmt->next)
            if (in(*stmt)) return true;
        return false;
    }

private:
    bool in(const Stmt& stmt) {
        switch (stmt.kind) {
        case StmtKind::For:
        case StmtKind::ForEach:
        case StmtKind::Do:
        case StmtKind::While: return true;
        case StmtKind::With: return in(as<BodyStmt>(stmt).body);
        case StmtKind::If:
            for (const auto& branch : as<IfStmt>(stmt).branches)
                if (in(branch.body)) return true;
            return false;
        case StmtKind::Select:
            for (const auto& branch : as<SelectStmt>(stmt).branches)
                if (in(branch.body)) return true;
            return false;
        default: return false;
        }
    }
};

bool isOwnArray(const Entity& entity, const Scope& scope) {
    if (entity.kind != EntityKind::Variable || !entity.type.isArray || !entity.owner || !entity.owner->source)
        return false;
    return entity.owner->kind == ScopeKind::StandardModule || entity.owner == &scope;
}

} // namespace

Emitter::Emitter(const ProgramLayout& layout, SourceModule& module, ModuleCode& code)
    : layout_(layout),
      module_(module),
      constants_(const_cast<Program&>(layout.program())),
      out_(code),
      lines_(module.tree.source) {}

void Emitter::begin(const ProcedureNames* names, const Notes* notes) {
    names_ = names;
    notes_ = notes;
    out_.begin();
    places_.clear();
    shared_.clear();
    indexes_.clear();
    labels_.clear();
    forExits_.clear();
    doExits_.clear();
    withs_.clear();
    me_ = image::kNoSlot;
    resumes_ = isTooLarge_ = false;
    depth_ = 0;
}

void Emitter::procedure(const ProcedureDecl& decl, const Entity& entity, const ProcedureNames& names,
                        const Notes& notes) {
    const Callable* callable = entity.get;
    for (const auto* each : {entity.get, entity.let, entity.set})
        if (each && each->body == &decl) callable = each;
    if (callable->body != &decl) return;
    begin(&names, &notes);
    if (notes.size() > kMostNotes) return reportTooLarge(decl.signature.namePos);
    decl_ = &decl;
    function_ = &entity;
    slots_.begin(localSlots() > Slots::kMostVariables);
    image::Procedure made;
    made.name = out_.module().text(std::string(spelling(entity.name)));
    declareParameters(*callable, decl);
    made.parameters = slots_.variableCount();
    slots_.endParameters();
    declareLocals(made);
    slots_.endVariables();
    beginLine(decl.pos);
    prepareLocals();
    shareArrays();
    block(decl.body);
    beginLine(decl.end);
    out_.emit(Op::Return);
    if (isTooLarge_ || slots_.isFull() || slots_.count() > image::kMostSlots)
        return reportTooLarge(decl.signature.namePos);
    finish(std::move(made), callable->number);
}

void Emitter::reportTooLarge(Pos pos) {
    module_.diagnostics.report(Message::ProcedureTooLarge, pos, nameOfProcedure());
}

std::string Emitter::nameOfProcedure() const { return decl_ ? std::string(spelling(decl_->signature.name)) : ""; }

void Emitter::finish(image::Procedure made, std::uint32_t number) {
    made.variables = slots_.variables();
    out_.finish(std::move(made), number, resumes_);
}

std::uint32_t Emitter::localSlots() const {
    std::uint32_t count = 0;
    for (const auto& each : names_->all())
        if (each.kind == EntityKind::Variable && !each.isStatic) count += layout_.slotsOf(known(each.type));
    return count;
}

/// What a library that is absent may give is late bound.
Type Emitter::known(const Type& type) {
    Type result = type;
    if (result.value == ValueType::Unknown) result.value = ValueType::Variant;
    return result;
}

/// Me is of exactly this class, even if others implement it.
image::SlotType Emitter::typeOfMe() const {
    return {image::BaseType::Object, image::TypeForm::Value, layout_.classOf(module_.scope->number)};
}

void Emitter::declareParameters(const Callable& callable, const ProcedureDecl& decl) {
    if (module_.scope->isClass()) me_ = slots_.variable(typeOfMe(), 1);
    const bool returnsRecord =
        callable.result.value == ValueType::Record && !callable.result.isArray &&
        (decl.signature.kind == ProcedureKind::Function || decl.signature.kind == ProcedureKind::PropertyGet);
    resultRecord_.reset();
    if (returnsRecord) {
        Place result;
        result.kind = PlaceKind::Ref;
        result.type = callable.result;
        result.slot = slots_.variable(layout_.referenceTo(callable.result), 2);
        resultRecord_ = result;
    }
    const auto& parameters = decl.signature.parameters;
    auto entity = names_->all().begin();
    for (std::uint32_t i = 0; i < parameters.size(); ++i, ++entity) {
        Place place;
        place.type = known(entity->type);
        place.entity = &*entity;
        const bool isReference = parameters[i].passing != Passing::ByVal && !parameters[i].paramArray;
        const auto type = isReference || (place.type.isArray && !parameters[i].paramArray)
                              ? layout_.referenceTo(place.type)
                              : layout_.slotTypeOf(place.type);
        place.slot = slots_.variable(type, image::slotsOf(type));
        if (type.form == image::TypeForm::Reference || type.form == image::TypeForm::ArrayReference)
            place.kind = PlaceKind::Ref;
        setPlace(*entity, place);
    }
}

void Emitter::declareLocals(image::Procedure& made) {
    for (const auto& each : names_->all()) {
        if (each.kind != EntityKind::Variable || each.isParameter) continue;
        if (each.isResult && resultRecord_) {
            setPlace(each, *resultRecord_);
            continue;
        }
        placeVariable(each);
        if (each.isResult) made.resultSlot = places_[each.place].slot;
    }
}

void Emitter::placeVariable(const Entity& entity) {
    Place place;
    place.type = known(entity.type);
    place.entity = &entity;
    place.isNew = makesObject(entity);
    const auto slots = layout_.slotsOf(place.type);
    const bool isRecord = place.type.value == ValueType::Record && !place.type.isArray;
    const auto type = isRecord ? layout_.typeOf(place.type) : layout_.slotTypeOf(place.type);
    if (entity.isStatic) {
        auto& code = out_.module();
        const bool isClass = module_.scope->isClass();
        place.kind = isClass ? PlaceKind::Field : PlaceKind::Static;
        place.slot = me_;
        place.offset = code.staticSlots + (isClass ? layout_.fieldSlots(module_.scope->number) : 0);
        code.statics.push_back({type, false});
        code.staticSlots += slots;
        statics_.emplace_back(place, entity);
    } else {
        place.slot = slots_.variable(type, slots);
        if (place.slot + slots > image::kMostDirectSlots) place.kind = PlaceKind::Wide;
    }
    setPlace(entity, place);
}

void Emitter::setPlace(const Entity& own, const Place& place) {
    own.place = static_cast<std::uint32_t>(places_.size());
    places_.push_back(place);
}

std::uint32_t Emitter::shapeOf(const Entity& entity) {
    out_.module().arrays.push_back(layout_.shapeOf(entity, module_, constants_, names_));
    return static_cast<std::uint32_t>(out_.module().arrays.size() - 1);
}

/// Gives a variable of a fixed size its elements or characters.
void Emitter::prepareVariable(const Place& place, const Entity& entity) {
    if (entity.isStaticArray) {
        const bool isSlot = place.kind == PlaceKind::Slot;
        const auto slot = isSlot ? place.slot : temporary(place.type);
        out_.emit(Op::NewArray, slot);
        out_.extra(shapeOf(entity), FixKind::Array);
        if (!isSlot) store(place, {place.type, slot, false});
    } else if (place.type.isArray) {
        return;
    } else if (place.type.value == ValueType::FixedString) {
        const auto slot = temporary(place.type);
        out_.emit(Op::LoadNulls, slot);
        out_.extra(place.type.id);
        store(place, {place.type, slot});
    } else if (place.type.value == ValueType::Record && layout_.needsPreparation(place.type)) {
        out_.emit(Op::PrepareRecord, reference(place).slot);
    }
}

void Emitter::prepareLocals() {
    const auto mark = slots_.mark();
    if (resultRecord_) out_.emit(Op::PrepareRecord, resultRecord_->slot); // the caller may use it again
    for (const auto& each : names_->all())
        if (each.kind == EntityKind::Variable && !each.isParameter && !each.isStatic && !each.isResult)
            prepareVariable(places_[each.place], each);
    clearObjects(mark);
    slots_.releaseTo(mark);
}

/// In a procedure with loops, arrays of modules and parameters that are arrays are shared once.
void Emitter::shareArrays() {
    for (const auto& each : names_->all()) {
        if (!each.isParameter || !each.type.isArray) continue;
        const Place place = places_[each.place];
        if (place.kind == PlaceKind::Ref) shareArray(each, place);
    }
    if (!LoopFinder{}.in(decl_->body)) return;
    std::size_t count = 0;
    for (const auto& note : *notes_) {
        if (!note.entity || !isOwnArray(*note.entity, *module_.scope) || shared_.contains(note.entity)) continue;
        if (slots_.count() > Slots::kMostVariables || ++count > kMostShared) return;
        shareArray(*note.entity, variablePlace(*note.entity));
    }
}

void Emitter::shareArray(const Entity& entity, const Place& place) {
    Place shared;
    shared.type = place.type;
    shared.slot = slots_.hidden(layout_.slotTypeOf(place.type));
    loadInto(place, shared.slot);
    if (entity.owner)
        shared_[&entity] = shared;
    else
        places_[entity.place] = shared;
}

void Emitter::prepare(std::uint32_t number) {
    static const Notes kNoNotes(1);
    begin(nullptr, &kNoNotes);
    decl_ = nullptr;
    slots_.begin(false);
    image::Procedure made;
    const bool isClass = module_.scope->isClass();
    if (isClass) me_ = slots_.variable(typeOfMe(), 1);
    made.name = out_.module().text(std::string(spelling(module_.scope->name)));
    made.parameters = isClass ? 1 : 0;
    slots_.endVariables();
    for (const auto& [entity, decl] : module_.variables) prepareOne(variablePlace(*entity), *entity);
    for (const auto& [place, entity] : statics_) {
        Place own = place;
        if (isClass) own.slot = me_;
        prepareOne(own, entity);
    }
    out_.emit(Op::Return);
    finish(std::move(made), number);
}

void Emitter::prepareOne(const Place& place, const Entity& entity) {
    const auto mark = slots_.mark();
    prepareVariable(place, entity);
    clearObjects(mark);
    slots_.releaseTo(mark);
}

} // namespace qltoolkit
