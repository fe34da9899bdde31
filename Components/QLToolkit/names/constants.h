#pragma once
// The values of constants.
#include "Components/QLToolkit/names/program.h"
#include <functional>

namespace qltoolkit {

/// Finds the constants that a procedure declares; null outside procedures.
using LocalConstants = std::function<const Entity*(Symbol)>;

/// Evaluates constant expressions and reports what is wrong with them, each error once.
class Constants {
public:
    explicit Constants(Program& program) : program_(program) {}

    /// Evaluates a constant if that has not been done.
    void evaluate(const Entity& constant, SourceModule& module, const LocalConstants& local = {});
    /// Returns the value of an expression, or nothing after an error that is reported.
    std::optional<ConstantValue> valueOf(const Expr& expr, SourceModule& module, const LocalConstants& local = {});
    /// The same, converted to Long.
    std::optional<basic::Long> longOf(const Expr& expr, SourceModule& module, const LocalConstants& local = {});
    /// The length of a fixed-length string, 0 after an error.
    std::uint32_t lengthOf(const Expr& expr, SourceModule& module, const LocalConstants& local = {});

private:
    struct Context {
        SourceModule& module;
        const LocalConstants& local;
    };
    void used(const Expr& expr, const Entity* entity, const Context& context);
    std::optional<ConstantValue> value(const Expr& expr, const Context& context);
    std::optional<ConstantValue> chain(const Expr& expr, const Context& context);
    std::optional<ConstantValue> unary(const UnaryExpr& expr, const Context& context);
    std::optional<ConstantValue> literal(const Expr& expr, const Context& context);
    std::optional<ConstantValue> named(const Expr& expr, const Entity* entity, const Context& context);
    const Entity* qualified(const MemberExpr& expr, const Context& context);
    const Entity* qualifier(const Entity* outer, Symbol name, const Context& context);
    std::optional<ConstantValue> checked(const Expr& expr, Folded folded, const Context& context);
    std::optional<ConstantValue> refuse(const Expr& expr, const Context& context);
    void evaluateOne(const Entity& constant, SourceModule& module, const LocalConstants& local);
    void refuseCircle(const Entity& constant, SourceModule& module);

    Program& program_;
    int depth_ = 0; // of constants that refer to others
};

} // namespace qltoolkit
