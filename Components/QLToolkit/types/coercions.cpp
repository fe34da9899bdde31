#include "Components/QLToolkit/types/coercions.h"
#include <array>

namespace qltoolkit {

namespace {

using V = ValueType;

/// The types that something can be assigned to are the first ones.
constexpr std::size_t kTargets = std::size_t(V::Array) + 1, kSources = std::size_t(V::None) + 1;
using Needs = std::array<Coercion, kTargets>;

constexpr std::array<Needs, kSources> readNeeds() {
    using enum Coercion;
    std::array<Needs, kSources> rows{};
    for (auto& row : rows) row.fill(Never);
#define ROW(from, ...) rows[std::size_t(V::from)] = {__VA_ARGS__};
#include "Components/QLToolkit/types/coercions.inc"
#undef ROW
    return rows;
}

constexpr auto kNeeds = readNeeds();

constexpr bool isText(const Type& type) {
    return !type.isArray && (type.value == V::String || type.value == V::FixedString);
}
constexpr bool isBytes(const Type& type) { return type.isArray && type.value == V::Byte; }

constexpr V withArray(const Type& type) { return type.isArray ? V::Array : type.value; }

/// An Enum is a Long wherever it is declared.
constexpr bool isSame(const Type& a, const Type& b) {
    if (a.value == V::Unknown || b.value == V::Unknown) return true;
    return a.value == b.value && (a.value == V::Long || a.id == b.id);
}

} // namespace

Coercion coercionOf(ValueType from, ValueType to) {
    if (from == V::None || to == V::None) return Coercion::Never;
    if (from == V::Unknown || to == V::Unknown) return Coercion::Same;
    return std::size_t(to) < kTargets ? kNeeds[std::size_t(from)][std::size_t(to)] : Coercion::Never;
}

Coercion coercionOf(const Type& from, const Type& to) {
    if ((isText(from) && isBytes(to)) || (isBytes(from) && isText(to))) return Coercion::Always;
    const bool compared = withArray(from) == withArray(to) && (from.isArray || from.value == V::Record);
    if (compared && !isSame(from, to)) return Coercion::Never;
    return coercionOf(withArray(from), withArray(to));
}

ByRef byRefOf(const Type& variable, const Type& parameter) {
    const bool takesAll = parameter.value == V::Variant && !parameter.isArray;
    if (takesAll || (variable.isArray == parameter.isArray && isSame(variable, parameter))) return ByRef::Address;
    if (variable.isArray || parameter.isArray) return ByRef::Never;
    const bool areObjects = variable.value == V::Object && parameter.value == V::Object;
    const bool areTexts = variable.value == V::FixedString && parameter.value == V::String;
    return areObjects || areTexts ? ByRef::Temporary : ByRef::Never;
}

} // namespace qltoolkit
