#pragma once
// Numbers that are written in an expression, for instructions with a number in them.
#include "Components/QLToolkit/parser/ast.h"
#include <cstdint>
#include <optional>

namespace qltoolkit {

/// The value of a whole number, with or without a minus.
[[nodiscard]] inline std::optional<std::int64_t> wholeLiteral(const Expr& expr) {
    if (expr.kind == ExprKind::Integer || expr.kind == ExprKind::Long) return as<IntegerExpr>(expr).value;
    if (expr.kind == ExprKind::Unary && expr.op() == Operator::Negate)
        if (const auto operand = wholeLiteral(*as<UnaryExpr>(expr).operand)) return -*operand;
    return std::nullopt;
}

[[nodiscard]] inline std::optional<double> numberLiteral(const Expr& expr) {
    if (const auto whole = wholeLiteral(expr)) return static_cast<double>(*whole);
    if (expr.kind == ExprKind::Single || expr.kind == ExprKind::Double) return as<FloatExpr>(expr).value;
    if (expr.kind == ExprKind::Unary && expr.op() == Operator::Negate)
        if (const auto operand = numberLiteral(*as<UnaryExpr>(expr).operand)) return -*operand;
    return std::nullopt;
}

} // namespace qltoolkit
