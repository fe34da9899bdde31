#include "Components/QLToolkit/types/operators.h"
#include <algorithm>
#include <array>

namespace qltoolkit {

namespace {

using V = ValueType;

/// Operators that convert their operands alike share a table.
enum class Table : std::uint8_t {
    Sum,
    Difference,
    Product,
    Division,
    Quotient,
    Power,
    Concat,
    Comparison,
    Like,
    Is,
    Logic
};

constexpr Table tableOf(Operator op) {
    switch (op) {
    case Operator::Add: return Table::Sum;
    case Operator::Subtract: return Table::Difference;
    case Operator::Multiply: return Table::Product;
    case Operator::Divide: return Table::Division;
    case Operator::IntDivide:
    case Operator::Mod: return Table::Quotient;
    case Operator::Power: return Table::Power;
    case Operator::Concat: return Table::Concat;
    case Operator::Like: return Table::Like;
    case Operator::Is: return Table::Is;
    default: return op < Operator::Not ? Table::Comparison : Table::Logic;
    }
}

constexpr std::size_t kTypeCount = std::size_t(V::None) + 1;
constexpr std::size_t at(V type) { return std::size_t(type); }

/// The types with rows and columns in operators.inc, in the order of the columns.
constexpr std::array kColumns{V::Boolean, V::Byte,     V::Integer, V::Long, V::Single,
                              V::Double,  V::Currency, V::Decimal, V::Date, V::String};
using Row = std::array<V, kColumns.size()>;

constexpr bool hasColumn(V type) { return std::ranges::find(kColumns, type) != kColumns.end(); }
/// Types whose values are known only when the program runs; of an object it is the value of its default member.
constexpr bool isLate(V type) {
    return type == V::Variant || type == V::Object || type == V::Null || type == V::Empty || type == V::Error;
}
constexpr bool hasValue(V type) { return hasColumn(type) || isLate(type); }
constexpr bool isReference(V type) { return type == V::Object || type == V::Variant || type == V::Nothing; }

constexpr Operation kImpossible{V::None, V::None}, kUnknown{V::Unknown, V::Unknown}, kLate{V::Variant, V::Variant};

/// What an operator makes of each pair of types.
class Square {
public:
    constexpr explicit Square(Table table) : table_(table) {
        for (auto& row : cells_) row.fill(kImpossible);
        readRows();
        for (V left = {}; left < V::Unknown; left = next(left))
            for (V right = {}; right < V::Unknown; right = next(right)) cell(left, right) = operationFor(left, right);
        addUnknown();
    }
    constexpr const Operation& operator()(V left, V right) const { return cells_[at(left)][at(right)]; }

private:
    constexpr Operation& cell(V left, V right) { return cells_[at(left)][at(right)]; }
    static constexpr V next(V type) { return V(at(type) + 1); }

    constexpr Operation made(V operands) const {
        const bool compares = table_ == Table::Comparison || table_ == Table::Like || table_ == Table::Is;
        return {operands, compares ? V::Boolean : operands};
    }
    constexpr void setRow(V left, const Row& row) {
        for (std::size_t i = 0; i < row.size(); ++i) cell(left, kColumns[i]) = made(row[i]);
    }
    constexpr void setAll(V operands) {
        for (const V left : kColumns)
            for (const V right : kColumns) cell(left, right) = made(operands);
    }
    constexpr void readRows();
    constexpr Operation operationFor(V left, V right) const;
    constexpr void addUnknown();

    Table table_;
    std::array<std::array<Operation, kTypeCount>, kTypeCount> cells_{};
};

constexpr void Square::readRows() {
    using enum ValueType;
    if (table_ == Table::Power) setAll(Double);
    if (table_ == Table::Concat || table_ == Table::Like) setAll(String);
    const Table rows = table_ == Table::Difference ? Table::Sum : table_;
#define ROW(table, left, ...)                                                                                          \
    if (rows == Table::table) setRow(left, {__VA_ARGS__});
#define CELL(table, left, right, type)                                                                                 \
    if (table_ == Table::table) cell(left, right) = made(type);
#define UNARY(...)
#include "Components/QLToolkit/types/operators.inc"
#undef ROW
#undef CELL
#undef UNARY
}

constexpr V withoutLength(V type) { return type == V::FixedString ? V::String : type; }

constexpr Operation Square::operationFor(V left, V right) const {
    if (table_ == Table::Is) return isReference(left) && isReference(right) ? made(V::Object) : kImpossible;
    if (!hasValue(withoutLength(left)) || !hasValue(withoutLength(right))) return kImpossible;
    return isLate(left) || isLate(right) ? kLate : (*this)(withoutLength(left), withoutLength(right));
}

/// What two of the types that Unknown can be for have in common.
constexpr Operation common(const Operation& a, const Operation& b) {
    if (a == kImpossible || b == kImpossible) return a == kImpossible ? b : a;
    return a == b ? a : kUnknown;
}

constexpr void Square::addUnknown() {
    for (V known = {}; known < V::Unknown; known = next(known)) {
        for (V other = {}; other < V::Unknown; other = next(other)) {
            cell(known, V::Unknown) = common((*this)(known, V::Unknown), (*this)(known, other));
            cell(V::Unknown, known) = common((*this)(V::Unknown, known), (*this)(other, known));
        }
        cell(V::Unknown, V::Unknown) = common((*this)(V::Unknown, V::Unknown), (*this)(known, V::Unknown));
    }
}

template <Table table>
constexpr Square kSquare{table};

// One for each Table, in its order.
constexpr const Square* kSquares[] = {&kSquare<Table::Sum>,      &kSquare<Table::Difference>, &kSquare<Table::Product>,
                                      &kSquare<Table::Division>, &kSquare<Table::Quotient>,   &kSquare<Table::Power>,
                                      &kSquare<Table::Concat>,   &kSquare<Table::Comparison>, &kSquare<Table::Like>,
                                      &kSquare<Table::Is>,       &kSquare<Table::Logic>};
static_assert(std::size(kSquares) == std::size_t(Table::Logic) + 1);

constexpr Row rowOf(Operator op) {
    using enum ValueType;
#define ROW(...)
#define CELL(...)
#define UNARY(table, ...)                                                                                              \
    if (op == Operator::table) return {__VA_ARGS__};
#include "Components/QLToolkit/types/operators.inc"
#undef ROW
#undef CELL
#undef UNARY
    return {};
}

constexpr std::optional<Operation> possible(const Operation& operation) {
    if (operation == kImpossible) return std::nullopt;
    return operation;
}

} // namespace

std::optional<Operation> operationOf(Operator op, ValueType left, ValueType right) {
    return possible((*kSquares[std::size_t(tableOf(op))])(left, right));
}

std::optional<Operation> operationOf(Operator op, ValueType operand) {
    if (operand == V::Unknown) return kUnknown;
    if (isLate(operand)) return kLate;
    const V type = withoutLength(operand);
    if (!hasColumn(type)) return std::nullopt;
    static constexpr Row kNegate = rowOf(Operator::Negate), kPlus = rowOf(Operator::Plus), kNot = rowOf(Operator::Not);
    const Row& row = op == Operator::Negate ? kNegate : op == Operator::Plus ? kPlus : kNot;
    const V made = row[std::size_t(std::ranges::find(kColumns, type) - kColumns.begin())];
    return Operation{made, made};
}

} // namespace qltoolkit
