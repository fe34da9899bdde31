#include "Components/QLToolkit/parser/conditional_functions.h"
#include "Basic/case_folding.h"
#include "Basic/date.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include <algorithm>

namespace qltoolkit {

namespace {

using Value = ConditionalValue;

basic::Convertible convertible(const Value& v) {
    return v.kind == Value::Kind::Text ? basic::Convertible(v.text) : basic::Convertible(v.number);
}

Value number(double n) { return {Value::Kind::Number, n, {}}; }

template <auto convert>
Value converted(const Value& v) {
    return number(basic::Convertible(convert(convertible(v))).number());
}

Value date(const Value& v) { return number(basic::CDate(convertible(v)).days); }

Value abs(const Value& v) { return number(basic::Abs(convertible(v).number())); }

Value wide(const Value& v) { return number(basic::Round(convertible(v))); }

Value text(const Value& v) { return {Value::Kind::Text, 0, textOf(v)}; }

Value same(const Value& v) { return v; }

/// A number has the size of the smallest type for a literal of its value.
Value sizeOf(double n) {
    if (basic::attempt([&] { (void)basic::CLng(n); }).Number != 0 || basic::Fix(n) != n) return number(8);
    return number(n >= -32768 && n <= 32767 ? 2 : 4);
}

Value length(const Value& v) { return v.kind == Value::Kind::Number ? sizeOf(v.number) : number(basic::Len(v.text)); }

Value bytes(const Value& v) {
    return v.kind == Value::Kind::Number ? sizeOf(v.number) : number(basic::Len(v.text) * 2.0);
}

struct Function {
    std::string_view name; ///< folded
    Value (*call)(const Value&);
};
constexpr Function kFunctions[] = {
    {"abs", abs},
    {"cbool", converted<basic::CBool>},
    {"cbyte", converted<basic::CByte>},
    {"ccur", converted<basic::CCur>},
    {"cdate", date},
    {"cdbl", converted<basic::CDbl>},
    {"cint", converted<basic::CInt>},
    {"clng", converted<basic::CLng>},
    {"clnglng", wide},
    {"clngptr", converted<basic::CLng>},
    {"csng", converted<basic::CSng>},
    {"cstr", text},
    {"cvar", same},
    {"fix", converted<basic::Fix>},
    {"int", converted<basic::Int>},
    {"len", length},
    {"lenb", bytes},
    {"sgn", converted<basic::Sgn>},
};

} // namespace

std::optional<ConditionalValue> callConditionalFunction(std::string_view name, const ConditionalValue& argument) {
    const auto* const found = std::find_if(std::begin(kFunctions), std::end(kFunctions),
                                           [&](const Function& f) { return basic::equalNoCase(f.name, name); });
    if (found == std::end(kFunctions)) return {};
    std::optional<ConditionalValue> result;
    (void)basic::attempt([&] { result = found->call(argument); });
    return result;
}

} // namespace qltoolkit
