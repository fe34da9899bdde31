#pragma once
// The values of constants.
#include "Components/QLToolkit/names/program.h"

namespace qltoolkit {

class ProcedureNames;

/// The names of the procedure that an expression is in, for the constants among them; null outside procedures.
using LocalConstants = const ProcedureNames*;

/// Evaluates constant expressions and reports what is wrong with them, each error once.
class Constants {
public:
    explicit Constants(Program& program) : program_(program) {}

    /// Evaluates a constant if that has not been done.
    void evaluate(const Entity& constant, SourceModule& module, LocalConstants local = nullptr);
    /// Returns the value of an expression, or nothing after an error that is reported.
    std::optional<ConstantValue> valueOf(const Expr& expr, SourceModule& module, LocalConstants local = nullptr);
    /// The same, converted to Long.
    std::optional<basic::Long> longOf(const Expr& expr, SourceModule& module, LocalConstants local = nullptr);
    /// The length of a fixed-length string, 0 after an error.
    std::uint32_t lengthOf(const Expr& expr, SourceModule& module, LocalConstants local = nullptr);

private:
    struct Context {
        SourceModule& module;
        LocalConstants local;
    };
    void used(const Expr& expr, const Entity* entity, const Context& context);
    std::optional<ConstantValue> value(const Expr& expr, const Context& context);
    std::optional<ConstantValue> chain(const Expr& expr, const Context& context);
    std::optional<ConstantValue> unary(const UnaryExpr& expr, const Context& context);
    std::optional<ConstantValue> literal(const Expr& expr, const Context& context);
    std::optional<ConstantValue> named(const Expr& expr, const Entity* entity, const Context& context);
    std::optional<ConstantValue> called(const IndexExpr& expr, const Context& context);
    const Entity* qualified(const MemberExpr& expr, const Context& context);
    const Entity* qualifier(const Entity* outer, Symbol name, const Context& context);
    std::optional<ConstantValue> checked(const Expr& expr, Folded folded, const Context& context);
    std::optional<ConstantValue> refuse(const Expr& expr, const Context& context);
    void evaluateOne(const Entity& constant, SourceModule& module, LocalConstants local);
    void refuseCircle(const Entity& constant, SourceModule& module);

    Program& program_;
    int depth_ = 0; // of constants that refer to others
};

} // namespace qltoolkit
