#pragma once
// Reads the tables of this folder.
#include "Components/QLToolkit/parser/ast_expressions.h"
#include "Components/QLToolkit/types/type.h"
#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace test::language {

using qltoolkit::Operator;
using qltoolkit::ValueType;

inline constexpr std::array kTypeNames{"Boolean", "Byte", "Integer", "Long",        "Single",  "Double",  "Currency",
                                       "Decimal", "Date", "String",  "FixedString", "Variant", "Object",  "Record",
                                       "Array",   "Null", "Empty",   "Nothing",     "Error",   "Unknown", "None"};
inline constexpr std::array kBinary{Operator::Power,   Operator::Multiply,     Operator::Divide,   Operator::IntDivide,
                                    Operator::Mod,     Operator::Add,          Operator::Subtract, Operator::Concat,
                                    Operator::Equal,   Operator::NotEqual,     Operator::Less,     Operator::LessEqual,
                                    Operator::Greater, Operator::GreaterEqual, Operator::Like,     Operator::Is,
                                    Operator::And,     Operator::Or,           Operator::Xor,      Operator::Eqv,
                                    Operator::Imp};
inline constexpr std::array kBinaryNames{"^",  "*", "/",  "\\",   "Mod", "+",   "-",  "&",   "=",   "<>", "<",
                                         "<=", ">", ">=", "Like", "Is",  "And", "Or", "Xor", "Eqv", "Imp"};
inline constexpr std::array kUnary{Operator::Negate, Operator::Plus, Operator::Not};
inline constexpr std::array kUnaryNames{"-", "+", "Not"};

inline std::vector<std::string> split(const std::string& text, char at) {
    std::vector<std::string> parts{""};
    for (const char c : text)
        if (c == at)
            parts.emplace_back();
        else
            parts.back() += c;
    return parts;
}

template <std::size_t count>
std::size_t indexOf(const std::array<const char*, count>& names, std::string_view name) {
    for (std::size_t i = 0; i < count; ++i)
        if (names[i] == name) return i;
    ADD_FAILURE() << "unknown: " << name;
    return 0;
}

inline ValueType typeNamed(std::string_view name) { return ValueType(indexOf(kTypeNames, name)); }
inline Operator binaryNamed(std::string_view name) { return kBinary[indexOf(kBinaryNames, name)]; }
inline Operator unaryNamed(std::string_view name) { return kUnary[indexOf(kUnaryNames, name)]; }

class Table {
public:
    explicit Table(const std::string& name) {
        std::ifstream file(FERNWICK_SOURCE_DIR "/tests/language/" + name);
        for (std::string line; std::getline(file, line);)
            if (!line.starts_with('#')) add(split(line, '\t'));
        EXPECT_FALSE(rows_.empty()) << name;
    }

    /// Without the heads of the columns.
    const std::vector<std::vector<std::string>>& rows() const { return rows_; }

    /// The types of a list, with those of its groups.
    std::vector<ValueType> types(const std::string& list) const {
        std::vector<ValueType> all;
        for (const auto& name : split(list, ',')) {
            const auto group = groups_.find(name);
            const auto more = group == groups_.end() ? std::vector{typeNamed(name)} : types(group->second);
            all.insert(all.end(), more.begin(), more.end());
        }
        return all;
    }

private:
    void add(const std::vector<std::string>& row) {
        if (row[0] == "section") return columns_ = row.size(), void();
        if (row[0] == "group") return groups_[row[1]] = row[2], void();
        EXPECT_EQ(row.size(), columns_) << testing::PrintToString(row);
        rows_.push_back(row);
    }

    std::size_t columns_ = 0;
    std::vector<std::vector<std::string>> rows_;
    std::map<std::string, std::string> groups_;
};

} // namespace test::language
