#pragma once
// Conditional compilation: its constants, and the open #If blocks.
#include "Components/QLToolkit/parser/ast.h"
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace qltoolkit {

/// A constant's value: Empty, a number (True is -1) or a string.
struct ConditionalValue {
    enum class Kind : std::uint8_t { Empty, Number, Text };
    Kind kind = Kind::Empty;
    double number = 0;
    std::string text;
};

/// Returns the value as the operator & joins it.
[[nodiscard]] std::string textOf(const ConditionalValue&);

/// The defined constants and the stack of open #If blocks.
class Conditions {
public:
    void define(Symbol name, ConditionalValue value) { constants_[name] = std::move(value); }

    /// Returns the value of a constant expression, in which undefined names are Empty. Returns nothing if the
    /// expression is not constant (a member, a call of a function that is not in conditional_functions.h) or mixes
    /// strings with numbers.
    [[nodiscard]] std::optional<ConditionalValue> evaluate(const SourceText&, const Expr&) const;

    struct Open {
        Pos pos;
        bool taken;  ///< a branch was compiled, or none can be because the enclosing code is skipped
        bool active; ///< the current branch is compiled
        bool seenElse;
    };
    [[nodiscard]] std::vector<Open>& open() { return open_; }
    [[nodiscard]] bool active() const { return open_.empty() || open_.back().active; }

private:
    [[nodiscard]] std::optional<ConditionalValue> evaluateChain(const SourceText&, const Expr&) const;
    [[nodiscard]] std::optional<ConditionalValue> evaluateCall(const SourceText&, const IndexExpr&) const;

    std::unordered_map<Symbol, ConditionalValue> constants_;
    std::vector<Open> open_;
};

} // namespace qltoolkit
