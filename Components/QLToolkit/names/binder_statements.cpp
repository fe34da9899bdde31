// Statements.
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/types/operators.h"

namespace qltoolkit {

namespace {

/// Nothing after the statement runs unless something jumps there.
bool leaves(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::GoTo:
    case StmtKind::Resume:
    case StmtKind::ResumeNext:
    case StmtKind::ExitSub:
    case StmtKind::ExitFunction:
    case StmtKind::ExitProperty:
    case StmtKind::ExitDo:
    case StmtKind::ExitFor:
    case StmtKind::End: return true;
    default: return false;
    }
}

bool isTarget(const Stmt& stmt) { return stmt.kind == StmtKind::Label || stmt.kind == StmtKind::LineNumber; }

} // namespace

void Binder::block(const Block& block) {
    for (const auto* stmt = block.first; stmt; stmt = stmt->next) {
        statement(*stmt);
        if (program_.warnsOptionally && leaves(*stmt) && stmt->next && !isTarget(*stmt->next))
            report(Message::Unreachable, stmt->next->pos);
    }
}

void Binder::statement(const Stmt& stmt) {
    if (!blockStatement(stmt) && !jumpStatement(stmt) && !fileStatement(stmt)) simpleStatement(stmt);
}

bool Binder::blockStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::If:
        for (const auto& branch : as<IfStmt>(stmt).branches) {
            condition(branch.condition);
            block(branch.body);
        }
        return true;
    case StmtKind::Select: select(as<SelectStmt>(stmt)); return true;
    case StmtKind::For: forLoop(as<ForStmt>(stmt)); return true;
    case StmtKind::ForEach: forEach(as<ForEachStmt>(stmt)); return true;
    case StmtKind::Do: doLoop(as<DoStmt>(stmt)); return true;
    case StmtKind::While:
        condition(as<BodyStmt>(stmt).value);
        block(as<BodyStmt>(stmt).body);
        return true;
    case StmtKind::With: with(as<BodyStmt>(stmt)); return true;
    default: return false;
    }
}

bool Binder::jumpStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::GoTo:
    case StmtKind::GoSub:
    case StmtKind::OnErrorGoTo: jump(as<TargetStmt>(stmt).target); return true;
    case StmtKind::Resume: {
        const auto& target = as<TargetStmt>(stmt).target;
        if (target.name != Symbol::None || target.number != 0) jump(target);
        return true;
    }
    case StmtKind::OnGoTo:
    case StmtKind::OnGoSub:
        value(as<OnJumpStmt>(stmt).value, ValueType::Integer);
        for (const auto& target : as<OnJumpStmt>(stmt).targets) jump(target);
        return true;
    case StmtKind::ExitSub:
    case StmtKind::ExitFunction:
    case StmtKind::ExitProperty:
    case StmtKind::ExitDo:
    case StmtKind::ExitFor: exit(stmt); return true;
    default: return false;
    }
}

bool Binder::fileStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Print:
    case StmtKind::PrintFile:
    case StmtKind::WriteFile: print(as<PrintStmt>(stmt)); return true;
    case StmtKind::Open: {
        const auto& open = as<OpenStmt>(stmt);
        value(open.path, ValueType::String);
        value(open.number, ValueType::Integer);
        value(open.recordLength, ValueType::Long);
        return true;
    }
    case StmtKind::Get:
    case StmtKind::LineInput: {
        const auto& file = as<FileStmt>(stmt);
        value(file.first, ValueType::Integer);
        if (stmt.kind == StmtKind::Get) value(file.second, ValueType::Long);
        (void)input(stmt.kind == StmtKind::Get ? file.third : file.second);
        return true;
    }
    case StmtKind::Put:
    case StmtKind::Seek:
    case StmtKind::Lock:
    case StmtKind::Unlock:
    case StmtKind::Width:
    case StmtKind::NameAs: {
        const auto& file = as<FileStmt>(stmt);
        for (const auto* part : {file.first, file.second, file.third})
            if (part) (void)expression(*part, Use::Argument);
        return true;
    }
    case StmtKind::Close:
        for (const auto* item : as<ListStmt>(stmt).items) value(item, ValueType::Integer);
        return true;
    case StmtKind::InputFile: {
        const auto& items = as<ListStmt>(stmt).items;
        for (std::uint32_t i = 0; i < items.size(); ++i)
            if (i == 0)
                value(items[i], ValueType::Integer);
            else
                (void)input(items[i]);
        return true;
    }
    default: return false;
    }
}

void Binder::simpleStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Let: let(as<AssignStmt>(stmt)); break;
    case StmtKind::Set: set(as<AssignStmt>(stmt)); break;
    case StmtKind::LSet:
    case StmtKind::RSet: align(as<AssignStmt>(stmt)); break;
    case StmtKind::MidAssign: {
        const auto& mid = as<MidAssignStmt>(stmt);
        (void)input(mid.target);
        value(mid.start, ValueType::Long);
        value(mid.length, ValueType::Long);
        value(mid.value, ValueType::String);
        break;
    }
    case StmtKind::Call: called(expression(*as<CallStmt>(stmt).call, Use::Statement)); break;
    case StmtKind::Local:
        for (const auto& each : as<LocalStmt>(stmt).variables) local(each, as<LocalStmt>(stmt).isStatic);
        warnOfUntyped(as<LocalStmt>(stmt).variables);
        break;
    case StmtKind::LocalConst:
        for (const auto& each : as<LocalConstStmt>(stmt).constants) localConstant(each);
        break;
    case StmtKind::ReDim:
        for (const auto& item : as<ReDimStmt>(stmt).items) reDim(item);
        break;
    case StmtKind::Erase:
        for (const auto* item : as<ListStmt>(stmt).items) {
            const Operand array = expression(*item, Use::Argument);
            if (!isIndexable(array.type) || array.type.value == ValueType::None)
                reportName(Message::ExpectedArray, array.pos);
        }
        break;
    case StmtKind::RaiseEvent: raiseEvent(as<RaiseEventStmt>(stmt)); break;
    default: break;
    }
}

// A statement that is a name alone calls a procedure.
void Binder::called(const Operand& operand) {
    if (operand.type.value == ValueType::Unknown) return;
    const auto refuse = [&](std::string_view kind) {
        module_.diagnostics.report(Message::ExpectedProcedure, operand.pos, kind);
    };
    if (operand.kind == OperandKind::Qualifier) return refuse(kindOf(operand));
    if (operand.kind == OperandKind::Variable || operand.kind == OperandKind::Constant) refuse("variable");
}

void Binder::condition(const Expr* expr) { value(expr, ValueType::Boolean); }

void Binder::jump(const Target& target) {
    if (const Entity* label = names_.findLabel(target)) return used(target.pos, *label);
    module_.diagnostics.report(Message::LabelNotDefined, target.pos, nameAt(module_.tree.source, target.pos));
}

void Binder::exit(const Stmt& stmt) {
    const auto kind = procedure_->signature.kind;
    switch (stmt.kind) {
    case StmtKind::ExitDo:
        if (doLoops_ == 0) report(Message::ExitDoOutside, stmt.pos);
        return;
    case StmtKind::ExitFor:
        if (forLoops_ == 0) report(Message::ExitForOutside, stmt.pos);
        return;
    case StmtKind::ExitSub: return exitProcedure(kind == ProcedureKind::Sub, "Sub", stmt.pos);
    case StmtKind::ExitFunction: return exitProcedure(kind == ProcedureKind::Function, "Function", stmt.pos);
    default: return exitProcedure(kind >= ProcedureKind::PropertyGet, "Property", stmt.pos);
    }
}

void Binder::exitProcedure(bool fits, std::string_view word, Pos pos) {
    if (!fits) module_.diagnostics.report(Message::ExitWrongProcedure, pos, word);
}

void Binder::raiseEvent(const RaiseEventStmt& stmt) {
    const Entity* event = module_.scope->events.find(stmt.name);
    if (event) used(stmt.namePos, *event);
    if (event && event->get) return arguments(*event->get, stmt.arguments, stmt.pos);
    if (!event) module_.diagnostics.report(Message::EventNotFound, stmt.pos, program_.symbols.spelling(stmt.name));
    lateArguments(stmt.arguments);
}

void Binder::print(const PrintStmt& stmt) {
    if (stmt.kind == StmtKind::Print)
        printTarget(*stmt.target);
    else
        value(stmt.target, ValueType::Integer);
    for (const auto& item : stmt.items)
        if (item.value) (void)expression(*item.value);
}

// The items of Print are no arguments, so the method itself is not called here.
void Binder::printTarget(const Expr& target) {
    if (target.kind != ExprKind::Member) return;
    if (const Expr* object = as<MemberExpr>(target).base) (void)expression(*object, Use::Argument);
}

void Binder::with(const BodyStmt& stmt) {
    Operand object = operandOf(stmt.value, Use::Argument);
    readValue(object);
    const auto type = object.type.value;
    const bool fits =
        (!object.type.isArray || isControlArray(object)) && (type == ValueType::Object || type == ValueType::Record ||
                                                             type == ValueType::Variant || type == ValueType::Unknown);
    if (!fits) {
        report(Message::ObjectRequired, object.pos);
        object.type = {ValueType::Unknown};
    }
    withs_.push_back(object);
    block(stmt.body);
    withs_.pop_back();
}

void Binder::select(const SelectStmt& stmt) {
    const Operand tested = operandOf(stmt.value);
    block(stmt.before);
    const auto valueType = [](const Operand& each) { return each.type.isArray ? ValueType::Array : each.type.value; };
    for (const auto& branch : stmt.branches) {
        for (const auto& item : branch.items) {
            for (const auto* part : {item.value, item.to}) {
                if (!part) continue;
                const Operand operand = expression(*part);
                if (!operationOf(Operator::Equal, valueType(tested), valueType(operand)))
                    report(Message::TypeMismatch, operand.pos);
            }
        }
        block(branch.body);
    }
}

} // namespace qltoolkit
