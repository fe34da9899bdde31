#pragma once
// What the generator of code learns while a program is bound.
#include "Components/QLToolkit/names/program.h"
#include <memory>

namespace qltoolkit {

class ProcedureNames;
struct Operand;

/// A procedure with more expressions is too large for code.
inline constexpr std::size_t kMostNotes = 0xFFFF;

/// What binding found out about the expressions of a procedure, by Expr::note. Number 0 is unused.
using Notes = std::vector<Operand>;

/// Receives the procedures of one module in source order, each before the next one is bound.
class ModuleCodeSink {
public:
    ModuleCodeSink() = default;
    ModuleCodeSink(const ModuleCodeSink&) = delete;
    virtual ~ModuleCodeSink() = default;

    /// Not called for procedures with errors.
    virtual void procedure(const ProcedureDecl& decl, const Entity& entity, const ProcedureNames& names,
                           const Notes& notes) = 0;
};

class CodeSink {
public:
    CodeSink() = default;
    CodeSink(const CodeSink&) = delete;
    virtual ~CodeSink() = default;

    /// All declarations are known and right. Called once, before any procedure is bound.
    virtual void declared(Program& program) = 0;
    /// May be called from several threads, once for each module.
    virtual ModuleCodeSink& module(std::size_t index) = 0;
};

} // namespace qltoolkit
