// Statements.
#include "Basic/case_folding.h"
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/types/operators.h"
#include <utility>

namespace qltoolkit {

using image::Op;

void Emitter::beginLine(Pos pos) {
    out_.line(lines_.lineOf(pos));
    out_.statement();
}

void Emitter::beginNext(Pos loop, std::uint32_t lines) {
    out_.line(lines_.lineOf(loop) + lines);
    out_.statement();
}

void Emitter::block(const Block& block) {
    for (const auto* stmt = block.first; stmt; stmt = stmt->next) statement(*stmt);
}

void Emitter::statement(const Stmt& stmt) {
    beginLine(stmt.pos);
    const auto mark = slots_.mark();
    const auto outer = std::exchange(statementMark_, mark);
    if (!blockStatement(stmt) && !jumpStatement(stmt) && !fileStatement(stmt)) simpleStatement(stmt);
    clearObjects(mark);
    slots_.releaseTo(mark);
    statementMark_ = outer;
}

bool Emitter::blockStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::If: ifStatement(as<IfStmt>(stmt)); return true;
    case StmtKind::Select: select(as<SelectStmt>(stmt)); return true;
    case StmtKind::For: forLoop(as<ForStmt>(stmt)); return true;
    case StmtKind::ForEach: forEach(as<ForEachStmt>(stmt)); return true;
    case StmtKind::Do: doLoop(as<DoStmt>(stmt)); return true;
    case StmtKind::While: {
        const auto& loop = as<BodyStmt>(stmt);
        whileLoop(loop.value, true, loop.body, std::nullopt);
        return true;
    }
    case StmtKind::With: with(as<BodyStmt>(stmt)); return true;
    default: return false;
    }
}

Label Emitter::labelOf(const Target& target) {
    const auto key = std::uint64_t{static_cast<std::uint32_t>(target.name)} << 32 | target.number;
    const auto [at, isNew] = labels_.try_emplace(key, Label{});
    if (isNew) at->second = out_.label();
    return at->second;
}

bool Emitter::jumpStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Label:
    case StmtKind::LineNumber: {
        const auto& target = as<TargetStmt>(stmt).target;
        out_.place(labelOf(target));
        if (stmt.kind == StmtKind::LineNumber) {
            out_.emit(Op::SetErl);
            out_.extra(target.number);
        }
        return true;
    }
    case StmtKind::GoTo: out_.jump(Op::Jump, labelOf(as<TargetStmt>(stmt).target)); return true;
    case StmtKind::GoSub: out_.jump(Op::GoSub, labelOf(as<TargetStmt>(stmt).target)); return true;
    case StmtKind::Return: out_.emit(Op::ReturnSub); return true;
    case StmtKind::OnErrorGoTo: out_.jump(Op::OnErrorGoTo, labelOf(as<TargetStmt>(stmt).target)); return true;
    case StmtKind::OnErrorResumeNext:
        resumes_ = true;
        out_.emit(Op::OnErrorResumeNext);
        return true;
    case StmtKind::OnErrorOff: out_.emit(Op::OnErrorOff); return true;
    case StmtKind::OnErrorClear: out_.emit(Op::OnErrorClear); return true;
    case StmtKind::Resume: {
        const auto& target = as<TargetStmt>(stmt).target;
        resumes_ = true;
        if (target.name == Symbol::None && target.number == 0)
            out_.emit(Op::Resume);
        else
            out_.jump(Op::ResumeAt, labelOf(target));
        return true;
    }
    case StmtKind::ResumeNext:
        resumes_ = true;
        out_.emit(Op::ResumeNext);
        return true;
    case StmtKind::OnGoTo:
    case StmtKind::OnGoSub: onJump(as<OnJumpStmt>(stmt)); return true;
    case StmtKind::ExitSub:
    case StmtKind::ExitFunction:
    case StmtKind::ExitProperty: out_.emit(Op::Return); return true;
    case StmtKind::ExitDo: out_.jump(Op::Jump, doExits_.back()); return true;
    case StmtKind::ExitFor: out_.jump(Op::Jump, forExits_.back()); return true;
    case StmtKind::End: out_.emit(Op::End); return true;
    case StmtKind::Stop: out_.emit(Op::Stop); return true;
    default: return false;
    }
}

void Emitter::onJump(const OnJumpStmt& stmt) {
    const Value number = value(*stmt.value, {ValueType::Long});
    const auto from = out_.here();
    out_.emit(stmt.kind == StmtKind::OnGoTo ? Op::JumpTable : Op::GoSubTable, number.slot, 0, stmt.targets.size());
    for (const auto& target : stmt.targets) out_.jumpTo(labelOf(target), from);
}

void Emitter::ifStatement(const IfStmt& stmt) {
    const Label end = out_.label();
    for (std::uint32_t i = 0; i < stmt.branches.size(); ++i) {
        const auto& branch = stmt.branches[i];
        const bool isLast = i + 1 == stmt.branches.size();
        const Label next = isLast ? end : out_.label();
        if (i > 0 && branch.condition) beginLine(branch.pos);
        if (branch.condition) condition(*branch.condition, false, next);
        block(branch.body);
        if (isLast) break;
        out_.jump(Op::Jump, end);
        out_.place(next);
    }
    out_.place(end);
}

void Emitter::select(const SelectStmt& stmt) {
    Value tested = value(*stmt.value);
    const bool isObject = tested.type.value == ValueType::Object && !tested.type.isArray;
    if (tested.variable || isObject) {
        const Type type = isObject ? Type{} : tested.type;
        tested = convert(tested, type, temporary(type));
    }
    tested.isTemporary = false;
    for (auto& each : slots_.inUse())
        if (each.slot == tested.slot) each.mustClear = false; // a value, never an object
    clearObjects(statementMark_);
    block(stmt.before);
    const Label end = out_.label();
    for (const auto& branch : stmt.branches) {
        const Label next = out_.label(), body = out_.label();
        beginLine(branch.pos);
        for (const auto& item : branch.items) {
            const auto mark = slots_.mark();
            caseTest(tested, item, body);
            slots_.releaseTo(mark);
        }
        if (!branch.items.empty()) out_.jump(Op::Jump, next);
        out_.place(body);
        block(branch.body);
        out_.jump(Op::Jump, end);
        out_.place(next);
    }
    out_.place(end);
}

namespace {

Operator operatorOf(CaseTest test) {
    switch (test) {
    case CaseTest::NotEqual: return Operator::NotEqual;
    case CaseTest::Less: return Operator::Less;
    case CaseTest::LessEqual: return Operator::LessEqual;
    case CaseTest::Greater: return Operator::Greater;
    case CaseTest::GreaterEqual: return Operator::GreaterEqual;
    default: return Operator::Equal;
    }
}

} // namespace

void Emitter::caseTest(const Value& tested, const CaseItem& item, Label body) {
    if (item.test != CaseTest::Range) return caseCompare(tested, operatorOf(item.test), *item.value, true, body);
    const Label outside = out_.label();
    caseCompare(tested, Operator::GreaterEqual, *item.value, false, outside);
    caseCompare(tested, Operator::LessEqual, *item.to, true, body);
    out_.place(outside);
}

void Emitter::caseCompare(const Value& tested, Operator op, const Expr& with, bool when, Label target) {
    const auto mark = slots_.mark();
    const Type type = typeOfExpr(with);
    const auto operation = operationOf(op, tested.type.isArray ? ValueType::Array : tested.type.value,
                                       type.isArray ? ValueType::Array : type.value);
    if (!operation || operation->operands == ValueType::Variant || operation->result != ValueType::Boolean) {
        const Value answer = operateVariants(op, tested, value(with), std::nullopt);
        const auto isTrue = temporary({ValueType::Boolean});
        out_.emit(Op::IsTrue, isTrue, answer.slot);
        clearObjects(mark);
        out_.jump(when ? Op::JumpTrue : Op::JumpFalse, target, isTrue);
        return;
    }
    const Value left = convert(tested, {operation->operands});
    const Value right = value(with, {operation->operands});
    clearObjects(mark);
    compareJump(op, left, right, when, target);
}

void Emitter::with(const BodyStmt& stmt) {
    WithObject held;
    const Type type = typeOfExpr(*stmt.value);
    image::SlotType slotType;
    std::uint32_t slot = 0;
    if (type.value == ValueType::Record) {
        const Place record = place(*stmt.value);
        const bool isOwn = record.kind == PlaceKind::Slot || record.kind == PlaceKind::Wide ||
                           record.kind == PlaceKind::Global || record.kind == PlaceKind::Static;
        held.isRecord = true;
        held.record = record;
        if (!isOwn) {
            slotType = layout_.referenceTo(type);
            slot = slots_.hidden(slotType);
            out_.emit(Op::CopyRef, slot, reference(record).slot);
            held.record = {};
            held.record.kind = PlaceKind::Ref;
            held.record.type = type;
            held.record.slot = slot;
        }
    } else {
        const Value object = value(*stmt.value);
        Type kept = object.type;
        if (kept.value == ValueType::Nothing) kept = {ValueType::Object};
        slotType = layout_.slotTypeOf(kept);
        slot = slots_.hidden(slotType);
        (void)moved({kept, object.slot, object.isTemporary}, slot);
        held.object = {kept, slot, false};
    }
    clearObjects(statementMark_);
    withs_.push_back(held);
    block(stmt.body);
    withs_.pop_back();
    if (slotType.base == image::BaseType::None) return;
    out_.emit(Op::Clear, slot);
    slots_.giveBack(slot, slotType);
}

void Emitter::simpleStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Let: let(as<AssignStmt>(stmt)); break;
    case StmtKind::Set: set(as<AssignStmt>(stmt)); break;
    case StmtKind::LSet:
    case StmtKind::RSet: align(as<AssignStmt>(stmt)); break;
    case StmtKind::MidAssign: midAssign(as<MidAssignStmt>(stmt)); break;
    case StmtKind::Call: callStatement(*as<CallStmt>(stmt).call); break;
    case StmtKind::ReDim: redim(as<ReDimStmt>(stmt)); break;
    case StmtKind::Erase:
        for (const auto* item : as<ListStmt>(stmt).items) erase(*item);
        break;
    case StmtKind::RaiseEvent: raiseEvent(as<RaiseEventStmt>(stmt)); break;
    default: break;
    }
}

void Emitter::callStatement(const Expr& call) {
    if (const auto* number = raisedNumber(call)) {
        out_.emit(Op::RaiseError, value(*number, {ValueType::Long}).slot);
        return;
    }
    const Place called = place(call);
    if (called.kind == PlaceKind::Late) (void)lateCall(called, image::LateUse::Call, nullptr, false);
    if (called.kind == PlaceKind::Property || called.kind == PlaceKind::VariantElement) (void)load(called);
}

/// The number of an Error statement, which has the form of a call of the function; null for other calls.
const Expr* Emitter::raisedNumber(const Expr& call) const {
    if (call.kind != ExprKind::Index) return nullptr;
    const Expr& callee = *as<IndexExpr>(call).callee;
    const auto& arguments = as<IndexExpr>(call).arguments;
    if (callee.kind != ExprKind::Name || arguments.size() != 1) return nullptr;
    if (!basic::equalNoCase(spelling(as<NameExpr>(callee).name), "Error")) return nullptr;
    const auto* entity = noteOf(callee.note != 0 ? callee : call).entity;
    return entity && !entity->owner->source ? arguments[0].value : nullptr;
}

void Emitter::redim(const ReDimStmt& stmt) {
    for (const auto& item : stmt.items) redimItem(item, stmt.preserve);
}

void Emitter::redimItem(const ReDimItem& item, bool preserve) {
    std::vector<std::uint16_t> bounds;
    for (const auto& bound : item.bounds) {
        const Value lower = bound.lower ? value(*bound.lower, {ValueType::Long}) : longConstant(module_.arrayBase, {});
        const Value upper = value(*bound.upper, {ValueType::Long});
        bounds.push_back(static_cast<std::uint16_t>(lower.slot));
        bounds.push_back(static_cast<std::uint16_t>(upper.slot));
    }
    const Entity* undeclared = item.target->kind == ExprKind::Name && item.target->note == 0
                                   ? names_->find(as<NameExpr>(*item.target).name)
                                   : nullptr;
    const Place target = undeclared ? variablePlace(*undeclared) : place(*item.target);
    const auto count = static_cast<std::uint32_t>(bounds.size() / 2);
    if (target.type.isArray) {
        out_.emit(Op::ReDim, array(target).slot, preserve ? 1 : 0, count);
    } else {
        const Value held = load(target);
        out_.emit(Op::ReDimVariant, held.slot, preserve ? 1 : 0, count);
        const ValueType element = item.type ? simpleType(item.type->kind) : ValueType::Variant;
        out_.extra(image::pack(layout_.typeOf(known({element}))));
        out_.halves(bounds);
        if (target.kind != PlaceKind::Slot) store(target, held);
        return;
    }
    out_.halves(bounds);
}

void Emitter::erase(const Expr& target) {
    const Place variable = place(target);
    if (variable.type.isArray) {
        const Entity* entity = noteOf(target).entity;
        out_.emit(Op::Erase, array(variable).slot, entity && entity->isStaticArray ? 1 : 0);
        return;
    }
    const Value held = load(variable);
    out_.emit(Op::EraseVariant, held.slot);
    if (variable.kind != PlaceKind::Slot) store(variable, held);
}

void Emitter::raiseEvent(const RaiseEventStmt& stmt) {
    const Entity* event = module_.scope->events.find(stmt.name);
    std::vector<PassedArgument> list;
    arguments(*event->get, stmt.arguments, list);
    std::uint32_t number = 0;
    for (const auto& [entity, decl] : module_.callables) {
        if (entity == event) break;
        if (decl->kind == DeclKind::Event) ++number;
    }
    out_.emit(Op::RaiseEvent, 0, me_, static_cast<std::uint32_t>(list.size()));
    out_.extra(number);
    words(list);
    storeBack(list);
}

} // namespace qltoolkit
