#pragma once
// The statements of TreeWalk.
#include "Components/QLToolkit/parser/tree_walk.h"

namespace qltoolkit {

template <class Visitor>
void TreeWalk<Visitor>::select(const SelectStmt& stmt) {
    expression(stmt.value);
    block(stmt.before);
    for (const auto& branch : stmt.branches) {
        for (const auto& item : branch.items) {
            expression(item.value);
            expression(item.to);
        }
        block(branch.body);
    }
}

template <class Visitor>
bool TreeWalk<Visitor>::blockStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::If:
        for (const auto& branch : as<IfStmt>(stmt).branches) {
            expression(branch.condition);
            block(branch.body);
        }
        return true;
    case StmtKind::Select: select(as<SelectStmt>(stmt)); return true;
    case StmtKind::For: {
        const auto& loop = as<ForStmt>(stmt);
        for (const auto* part : {loop.variable, loop.from, loop.to, loop.step}) expression(part);
        block(loop.body);
        expression(loop.next);
        return true;
    }
    case StmtKind::ForEach:
        expression(as<ForEachStmt>(stmt).variable);
        expression(as<ForEachStmt>(stmt).in);
        block(as<ForEachStmt>(stmt).body);
        expression(as<ForEachStmt>(stmt).next);
        return true;
    case StmtKind::Do:
        expression(as<DoStmt>(stmt).condition);
        block(as<DoStmt>(stmt).body);
        return true;
    case StmtKind::While:
    case StmtKind::With:
        expression(as<BodyStmt>(stmt).value);
        block(as<BodyStmt>(stmt).body);
        return true;
    default: return false;
    }
}

template <class Visitor>
bool TreeWalk<Visitor>::fileStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Print:
    case StmtKind::PrintFile:
    case StmtKind::WriteFile:
        expression(as<PrintStmt>(stmt).target);
        for (const auto& item : as<PrintStmt>(stmt).items) expression(item.value);
        return true;
    case StmtKind::Open: {
        const auto& open = as<OpenStmt>(stmt);
        for (const auto* part : {open.path, open.number, open.recordLength}) expression(part);
        return true;
    }
    case StmtKind::Get:
    case StmtKind::Put:
    case StmtKind::Seek:
    case StmtKind::Lock:
    case StmtKind::Unlock:
    case StmtKind::LineInput:
    case StmtKind::Width:
    case StmtKind::NameAs: {
        const auto& file = as<FileStmt>(stmt);
        for (const auto* part : {file.first, file.second, file.third}) expression(part);
        return true;
    }
    case StmtKind::Erase:
    case StmtKind::Close:
    case StmtKind::InputFile:
        for (const auto* item : as<ListStmt>(stmt).items) expression(item);
        return true;
    default: return false;
    }
}

template <class Visitor>
bool TreeWalk<Visitor>::jump(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Label:
    case StmtKind::LineNumber:
    case StmtKind::GoTo:
    case StmtKind::GoSub:
    case StmtKind::OnErrorGoTo:
    case StmtKind::Resume: visitor_.symbol(as<TargetStmt>(stmt).target.name); return true;
    case StmtKind::OnGoTo:
    case StmtKind::OnGoSub:
        expression(as<OnJumpStmt>(stmt).value);
        for (const auto& target : as<OnJumpStmt>(stmt).targets) visitor_.symbol(target.name);
        return true;
    default: return false;
    }
}

template <class Visitor>
void TreeWalk<Visitor>::simpleStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Let:
    case StmtKind::Set:
    case StmtKind::LSet:
    case StmtKind::RSet:
        expression(as<AssignStmt>(stmt).target);
        expression(as<AssignStmt>(stmt).value);
        break;
    case StmtKind::MidAssign: {
        const auto& mid = as<MidAssignStmt>(stmt);
        for (const auto* part : {mid.target, mid.start, mid.length, mid.value}) expression(part);
        break;
    }
    case StmtKind::Call: expression(as<CallStmt>(stmt).call); break;
    case StmtKind::Local:
        for (const auto& each : as<LocalStmt>(stmt).variables) variable(each);
        break;
    case StmtKind::LocalConst:
        for (const auto& each : as<LocalConstStmt>(stmt).constants) constant(each);
        break;
    case StmtKind::ReDim:
        for (const auto& item : as<ReDimStmt>(stmt).items) {
            expression(item.target);
            bounds(item.bounds);
            type(item.type);
        }
        break;
    case StmtKind::RaiseEvent:
        visitor_.symbol(as<RaiseEventStmt>(stmt).name);
        for (const auto& each : as<RaiseEventStmt>(stmt).arguments) {
            visitor_.symbol(each.name);
            expression(each.value);
        }
        break;
    default: break;
    }
}

} // namespace qltoolkit
