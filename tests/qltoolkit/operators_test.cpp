#include "Components/QLToolkit/types/operators.h"
#include "tests/language/table.h"
#include <gtest/gtest.h>

using namespace test::language;
using qltoolkit::Operation;
using qltoolkit::operationOf;

namespace {

constexpr auto kTypes = kTypeNames.size();

std::optional<Operation> cellOf(const std::string& operands, const std::string& result) {
    if (operands == "-") return std::nullopt;
    return Operation{typeNamed(operands), typeNamed(result)};
}

std::string text(const std::optional<Operation>& cell) {
    if (!cell) return "-";
    return std::string(kTypeNames[std::size_t(cell->operands)]) + " gives " + kTypeNames[std::size_t(cell->result)];
}

using Types = std::pair<ValueType, ValueType>;

/// What the rows say of one binary operator.
std::map<Types, std::optional<Operation>> cellsOf(const Table& table, const std::string& op) {
    std::map<Types, std::optional<Operation>> cells;
    for (const auto& row : table.rows())
        for (const auto& name : split(row[1], ' '))
            if (name == op)
                for (const auto left : table.types(row[2]))
                    for (const auto right : table.types(row[3])) cells[{left, right}] = cellOf(row[4], row[5]);
    return cells;
}

} // namespace

TEST(Operators, OfTwoOperandsHaveTheTypesOfTheLanguage) {
    const Table table("binary_operators.tsv");
    for (const auto* op : kBinaryNames) {
        const auto cells = cellsOf(table, op);
        EXPECT_EQ(cells.size(), kTypes * kTypes) << op << " has cells without a row";
        for (const auto& [types, expected] : cells)
            EXPECT_EQ(text(operationOf(binaryNamed(op), types.first, types.second)), text(expected))
                << kTypeNames[std::size_t(types.first)] << " " << op << " " << kTypeNames[std::size_t(types.second)];
    }
}

TEST(Operators, OfOneOperandHaveTheTypesOfTheLanguage) {
    const Table table("unary_operators.tsv");
    for (const auto* op : kUnaryNames) {
        std::map<ValueType, std::optional<Operation>> cells;
        for (const auto& row : table.rows())
            for (const auto& name : split(row[1], ' '))
                if (name == op)
                    for (const auto operand : table.types(row[2])) cells[operand] = cellOf(row[3], row[4]);
        EXPECT_EQ(cells.size(), kTypes) << op << " has cells without a row";
        for (const auto& [operand, expected] : cells)
            EXPECT_EQ(text(operationOf(unaryNamed(op), operand)), text(expected))
                << op << " " << kTypeNames[std::size_t(operand)];
    }
}

TEST(Operators, EveryOneIsInTheTables) {
    EXPECT_EQ(kBinary.size() + kUnary.size(), std::size_t(Operator::Imp) + 1);
    EXPECT_EQ(kTypeNames.size(), std::size_t(ValueType::None) + 1);
}
