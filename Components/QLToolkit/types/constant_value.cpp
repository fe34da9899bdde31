#include "Components/QLToolkit/types/constant_value.h"
#include "Basic/conversions.h"
#include "Basic/date.h"
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/types/folding.h"
#include <array>

namespace qltoolkit {

namespace {

using V = ValueType;

// In the order of ConstantValue's alternatives.
constexpr std::array kAlternatives{V::Empty, V::Null,   V::Nothing, V::Boolean,  V::Byte, V::Integer,
                                   V::Long,  V::Single, V::Double,  V::Currency, V::Date, V::String};
static_assert(kAlternatives.size() == std::variant_size_v<ConstantValue>);

struct ToConvertible {
    basic::Convertible operator()(std::monostate) const { return 0; }
    basic::Convertible operator()(NullValue) const { throw basic::RuntimeError(basic::kInvalidUseOfNull); }
    basic::Convertible operator()(NothingValue) const { throw basic::RuntimeError(basic::kObjectVariableNotSet); }
    basic::Convertible operator()(const auto& value) const { return value; }
};

struct ToText {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(NullValue) const { throw basic::RuntimeError(basic::kInvalidUseOfNull); }
    std::string operator()(NothingValue) const { throw basic::RuntimeError(basic::kObjectVariableNotSet); }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const auto& value) const { return basic::CStr(value); }
};

ConstantValue toNumber(const basic::Convertible& value, ValueType to) {
    switch (to) {
    case V::Boolean: return basic::CBool(value);
    case V::Byte: return basic::CByte(value);
    case V::Integer: return basic::CInt(value);
    case V::Long: return basic::CLng(value);
    case V::Single: return basic::CSng(value);
    case V::Double: return basic::CDbl(value);
    case V::Currency: return basic::CCur(value);
    case V::Date: return basic::CDate(value);
    default: throw basic::RuntimeError(to == V::Object ? basic::kObjectRequired : basic::kTypeMismatch);
    }
}

} // namespace

ValueType typeOf(const ConstantValue& value) { return kAlternatives[value.index()]; }

ConstantValue converted(const ConstantValue& value, ValueType to) {
    const bool isNothing = to == V::Object && typeOf(value) == V::Nothing;
    if (to == typeOf(value) || to == V::Variant || to == V::Unknown || isNothing) return value;
    if (to == V::String || to == V::FixedString) return std::visit(ToText{}, value);
    return toNumber(std::visit(ToConvertible{}, value), to);
}

Folded convert(const ConstantValue& value, ValueType to) {
    Folded result;
    result.error = basic::attempt([&] { result.value = converted(value, to); }).Number;
    return result;
}

} // namespace qltoolkit
