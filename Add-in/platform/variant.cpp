#include "Add-in/platform/variant.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {
template <class... F>
struct VariantCases : F... {
    using F::operator()...;
};
template <class... F>
VariantCases(F...) -> VariantCases<F...>;
} // namespace

std::int32_t asLong(const Variant& value) {
    return std::visit(VariantCases{[](std::monostate) { return std::int32_t{0}; },
                                   [](bool b) { return std::int32_t{b ? -1 : 0}; }, [](std::int32_t n) { return n; },
                                   [](double d) { return basic::CLng(d); },
                                   [](const std::string& text) { return basic::CLng(text); }},
                      value);
}

double asDouble(const Variant& value) {
    return std::visit(VariantCases{[](std::monostate) { return 0.0; }, [](bool b) { return b ? -1.0 : 0.0; },
                                   [](std::int32_t n) { return double(n); }, [](double d) { return d; },
                                   [](const std::string& text) { return basic::CDbl(text); }},
                      value);
}

bool asBoolean(const Variant& value) {
    return std::visit(VariantCases{[](std::monostate) { return false; }, [](bool b) { return b; },
                                   [](std::int32_t n) { return n != 0; }, [](double d) { return d != 0; },
                                   [](const std::string& text) { return basic::CBool(text); }},
                      value);
}

std::string asText(const Variant& value) {
    return std::visit(VariantCases{[](std::monostate) { return std::string(); },
                                   [](bool b) { return std::string(b ? "True" : "False"); },
                                   [](std::int32_t n) { return std::to_string(n); },
                                   [](double d) { return basic::CStr(d); },
                                   [](const std::string& text) { return text; }},
                      value);
}

} // namespace fernwick
