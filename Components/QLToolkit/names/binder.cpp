#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/lookup.h"

namespace qltoolkit {

void Binder::bindModule(ModuleCodeSink* code) {
    notes_ = code != nullptr;
    for (const auto* decl = module_.tree.declarations; decl; decl = decl->next)
        if (decl->kind == DeclKind::Variables) warnOfUntyped(as<VariablesDecl>(*decl).variables);
    for (const auto& [entity, decl] : module_.callables)
        if (decl->kind == DeclKind::Procedure) {
            found_.assign(1, {});
            procedure(as<ProcedureDecl>(*decl), *entity);
            if (code && module_.diagnostics.errors() == 0)
                code->procedure(as<ProcedureDecl>(*decl), *entity, names_, found_);
        }
}

/// Numbers beyond the range of Expr::note are 0; the generator of code refuses such a procedure.
void Binder::note(const Expr& expr, const Operand& operand) {
    if (!notes_) return;
    expr.note = static_cast<std::uint16_t>(found_.size() <= kMostNotes ? found_.size() : 0);
    found_.push_back(operand);
}

void Binder::procedure(const ProcedureDecl& decl, Entity& entity) {
    names_.begin(program_.symbols.count());
    procedure_ = &decl;
    function_ = &entity;
    withs_.clear();
    loopVariables_.clear();
    doLoops_ = forLoops_ = 0;
    const auto kind = decl.signature.kind;
    const Callable* callable = kind == ProcedureKind::PropertyLet   ? entity.let
                               : kind == ProcedureKind::PropertySet ? entity.set
                                                                    : entity.get;
    if (!callable || callable->body != &decl) return; // declared twice
    declareParameters(*callable, decl);
    if (decl.isLabelled) declareLabels(decl.body);
    block(decl.body);
    if (program_.warnsOptionally) warnOfUnused(decl);
}

/// Returns nothing if the name is declared already.
Entity* Binder::declare(EntityKind kind, Symbol name, Pos pos) {
    Entity* made = names_.add(kind, name, pos);
    if (made) used(pos, *made);
    return made;
}

void Binder::declareParameters(const Callable& callable, const ProcedureDecl& decl) {
    const auto& signature = decl.signature;
    for (std::uint32_t i = 0; i < signature.parameters.size(); ++i) {
        const auto& parameter = signature.parameters[i];
        Entity* made = declare(EntityKind::Variable, parameter.name, parameter.pos);
        if (!made) {
            reportName(Message::DuplicateDeclaration, parameter.pos);
            continue;
        }
        made->isParameter = true;
        made->type = i < callable.parameters.size() ? callable.parameters[i].type : callable.result;
        made->type.isArray |= parameter.paramArray;
    }
    if (signature.kind != ProcedureKind::Function && signature.kind != ProcedureKind::PropertyGet) return;
    Entity* result = names_.add(EntityKind::Variable, signature.name, signature.namePos);
    if (!result) return reportName(Message::DuplicateDeclaration, signature.namePos);
    result->isResult = true;
    result->type = callable.result;
}

void Binder::declareLabel(const Target& label) {
    const Entity* made = names_.addLabel(label);
    if (!made) return reportName(Message::DuplicateLabel, label.pos);
    used(label.pos, *made);
}

void Binder::declareLabels(const Block& block) {
    for (const auto* stmt = block.first; stmt; stmt = stmt->next) {
        switch (stmt->kind) {
        case StmtKind::Label:
        case StmtKind::LineNumber: declareLabel(as<TargetStmt>(*stmt).target); break;
        case StmtKind::If:
            for (const auto& branch : as<IfStmt>(*stmt).branches) declareLabels(branch.body);
            break;
        case StmtKind::Select:
            for (const auto& branch : as<SelectStmt>(*stmt).branches) declareLabels(branch.body);
            break;
        case StmtKind::For: declareLabels(as<ForStmt>(*stmt).body); break;
        case StmtKind::ForEach: declareLabels(as<ForEachStmt>(*stmt).body); break;
        case StmtKind::Do: declareLabels(as<DoStmt>(*stmt).body); break;
        case StmtKind::While:
        case StmtKind::With: declareLabels(as<BodyStmt>(*stmt).body); break;
        default: break;
        }
    }
}

void Binder::warnOfUnused(const ProcedureDecl& decl) {
    for (const auto& entity : names_.all()) {
        if (entity.isResult && !entity.isUsed && decl.body.first) reportName(Message::ResultNeverSet, entity.pos);
        if (entity.kind != EntityKind::Variable || entity.isResult || entity.isParameter || entity.isImplicit) continue;
        if (!entity.isUsed) reportName(Message::UnusedVariable, entity.pos);
    }
}

void Binder::reportName(Message message, Pos pos) {
    module_.diagnostics.report(message, pos, nameAt(module_.tree.source, pos));
}

void Binder::warn(Message message, Pos pos) {
    if (program_.warnsOptionally) reportName(message, pos);
}

} // namespace qltoolkit
