#pragma once
// Reads and prints the values in the tables of this folder.
#include "Basic/conversions.h"
#include "Basic/date.h"
#include "Components/QLToolkit/types/constant_value.h"
#include "tests/language/table.h"
#include <cstdlib>

namespace test::language {

using qltoolkit::ConstantValue;
using qltoolkit::Folded;

/// The value of "Integer 5" or "Empty".
inline ConstantValue valueOf(const std::string& text) {
    const auto blank = std::min(text.find(' '), text.size());
    const auto type = typeNamed(text.substr(0, blank));
    const auto rest = text.substr(std::min(blank + 1, text.size()));
    switch (type) {
    case ValueType::Empty: return {};
    case ValueType::Null: return qltoolkit::NullValue{};
    case ValueType::Nothing: return qltoolkit::NothingValue{};
    case ValueType::Boolean: return rest == "True";
    case ValueType::Byte: return basic::Byte(std::atoi(rest.c_str()));
    case ValueType::Integer: return basic::Integer(std::atoi(rest.c_str()));
    case ValueType::Long: return basic::Long(std::atol(rest.c_str()));
    case ValueType::Single: return std::strtof(rest.c_str(), nullptr);
    case ValueType::Double: return std::strtod(rest.c_str(), nullptr);
    case ValueType::Currency: return basic::CCur(rest);
    case ValueType::Date: return basic::Date{std::strtod(rest.c_str(), nullptr)};
    case ValueType::String: return rest;
    default: ADD_FAILURE() << text; return {};
    }
}

/// The value or "Error 6".
inline Folded resultOf(const std::string& text) {
    if (!text.starts_with("Error ")) return {valueOf(text), 0};
    return {{}, std::atoi(text.c_str() + 6)};
}

struct Printed {
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(basic::Date date) const { return basic::CStr(date.days); }
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(qltoolkit::NullValue) const { return {}; }
    std::string operator()(qltoolkit::NothingValue) const { return {}; }
    std::string operator()(const auto& number) const { return basic::CStr(number); }
};

inline std::string printed(const Folded& result) {
    if (result.error) return "Error " + std::to_string(result.error);
    return std::string(kTypeNames[std::size_t(typeOf(result.value))]) + " " + std::visit(Printed{}, result.value);
}

} // namespace test::language
