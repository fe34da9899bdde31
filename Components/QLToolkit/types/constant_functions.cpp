#include "Components/QLToolkit/types/constant_functions.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/types/folding.h"
#include <algorithm>
#include <cmath>
#include <iterator>

namespace qltoolkit {

namespace {

constexpr basic::Integer kZero = 0;

/// A Boolean as the Integer that it counts as, a text as the number that it is.
ConstantValue numberOf(const ConstantValue& value) {
    const ValueType type = typeOf(value);
    if (type == ValueType::Boolean || type == ValueType::Empty) return converted(value, ValueType::Integer);
    return type == ValueType::String ? converted(value, ValueType::Double) : value;
}

bool isTrue(const Folded& result) { return std::get<bool>(result.value); }

Folded absolute(const ConstantValue& value) {
    const auto number = numberOf(value);
    return isTrue(fold(Operator::Less, number, kZero)) ? fold(Operator::Negate, number) : Folded{number};
}

Folded signOf(const ConstantValue& value) {
    const auto number = numberOf(value);
    const int sign = isTrue(fold(Operator::Greater, number, kZero)) - isTrue(fold(Operator::Less, number, kZero));
    return {static_cast<basic::Integer>(sign)};
}

/// Rounds numbers with fractions and keeps their type.
template <double (*rounded)(double)>
Folded whole(const ConstantValue& value) {
    const auto number = numberOf(value);
    const ValueType type = typeOf(number);
    const bool hasFraction = type == ValueType::Single || type == ValueType::Double || type == ValueType::Currency ||
                             type == ValueType::Date;
    if (!hasFraction) return {number};
    return convert(rounded(std::get<basic::Double>(converted(number, ValueType::Double))), type);
}

double down(double number) { return std::floor(number); }
double towardsZero(double number) { return std::trunc(number); }

/// In UTF-16 units: characters of four bytes are two.
basic::Long unitsOf(const ConstantValue& value) {
    const auto text = std::get<std::string>(converted(value, ValueType::String));
    basic::Long units = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        units += (byte & 0xC0) != 0x80;
        units += byte >= 0xF0;
    }
    return units;
}

Folded length(const ConstantValue& value) { return {unitsOf(value)}; }
Folded bytes(const ConstantValue& value) { return {2 * unitsOf(value)}; }

template <ValueType type>
Folded as(const ConstantValue& value) {
    return convert(value, type);
}

struct Function {
    std::string_view name;
    Folded (*call)(const ConstantValue&);
    bool passesNull = true; ///< Null gives Null
};
constexpr Function kFunctions[] = {
    {"Abs", absolute},
    {"CBool", as<ValueType::Boolean>, false},
    {"CByte", as<ValueType::Byte>, false},
    {"CCur", as<ValueType::Currency>, false},
    {"CDate", as<ValueType::Date>, false},
    {"CDbl", as<ValueType::Double>, false},
    {"CInt", as<ValueType::Integer>, false},
    {"CLng", as<ValueType::Long>, false},
    {"CSng", as<ValueType::Single>, false},
    {"CStr", as<ValueType::String>, false},
    {"CVar", as<ValueType::Variant>, false},
    {"Fix", whole<towardsZero>},
    {"Int", whole<down>},
    {"Len", length},
    {"LenB", bytes},
    {"Sgn", signOf},
};

} // namespace

std::optional<Folded> callConstantFunction(std::string_view name, const ConstantValue& argument) {
    const auto* const found = std::find_if(std::begin(kFunctions), std::end(kFunctions),
                                           [&](const Function& f) { return basic::equalNoCase(f.name, name); });
    if (found == std::end(kFunctions)) return std::nullopt;
    if (found->passesNull && isNull(argument)) return Folded{argument};
    Folded result;
    const auto err = basic::attempt([&] { result = found->call(argument); });
    if (err.Number != 0) return Folded{{}, static_cast<int>(err.Number)};
    return result;
}

} // namespace qltoolkit
