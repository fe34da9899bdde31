#pragma once
// Conditional compilation: the constants, and which branch of an #If counts.
#include "Components/QLToolkit/parser/ast.h"
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace qltoolkit {

/// A constant's value: Empty, a number (True is -1), or a text.
struct ConditionalValue {
    enum class Kind : std::uint8_t { Empty, Number, Text };
    Kind kind = Kind::Empty;
    double number = 0;
    std::string text;
};

/// The constants that are defined, and the stack of open #If.
class Conditions {
public:
    void define(Symbol name, ConditionalValue value) { constants_[name] = std::move(value); }

    /// The value of an expression over constants; a name that nobody defined is Empty. Nothing when the expression
    /// uses what is not known while compiling (a call, a member) or does not fit (text with numbers).
    [[nodiscard]] std::optional<ConditionalValue> evaluate(const SourceText&, const Expr&) const;

    struct Open {
        Pos pos;
        bool taken;  ///< a branch of it was compiled, or none can be as the surroundings are left out
        bool active; ///< the current branch is compiled
        bool seenElse;
    };
    [[nodiscard]] std::vector<Open>& open() { return open_; }
    [[nodiscard]] bool active() const { return open_.empty() || open_.back().active; }

private:
    [[nodiscard]] std::optional<ConditionalValue> evaluateChain(const SourceText&, const Expr&) const;

    std::unordered_map<Symbol, ConditionalValue> constants_;
    std::vector<Open> open_;
};

} // namespace qltoolkit
