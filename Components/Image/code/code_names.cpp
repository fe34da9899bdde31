#include "Components/Image/code/code_names.h"
#include "Basic/printable.h"

namespace image {

namespace {

constexpr std::size_t kLongestShown = 60; // bytes

constexpr std::string_view kBaseNames[] = {"None",     "Boolean", "Byte", "Integer", "Long",   "Single", "Double",
                                           "Currency", "Date",    "Text", "Variant", "Object", "Record", "Half"};
static_assert(std::size(kBaseNames) == kBaseTypes);
constexpr std::string_view kPassNames[] = {"Number", "Text", "Object", "Variant", "Take", "TakePair", "Address", "Ref"};
constexpr std::string_view kOperatorNames[] = {"^",  "*",   "/",   "\\",  "Mod", "+",   "-",    "&",
                                               "=",  "<>",  "<",   "<=",  ">",   ">=",  "Like", "And",
                                               "Or", "Xor", "Eqv", "Imp", "-",   "Not", "+"};
static_assert(std::size(kOperatorNames) == kVariantOperators);
constexpr std::string_view kUseNames[] = {"Call", "Get", "Let", "Set"};

template <std::size_t N, class E>
std::string_view nameIn(const std::string_view (&names)[N], E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? names[index] : "?";
}

std::string valueName(const CodeImage& code, SlotType type) {
    const std::string base{nameOf(type.base)};
    if (type.base == BaseType::Record) return base + " " + std::to_string(type.id);
    if (type.base == BaseType::Object && type.id != 0) return base + " of class " + className(code, type.id);
    return base;
}

} // namespace

std::string_view nameOf(BaseType type) { return nameIn(kBaseNames, type); }
std::string_view nameOf(Pass pass) { return nameIn(kPassNames, pass); }
std::string_view nameOf(VariantOperator op) { return nameIn(kOperatorNames, op); }
std::string_view nameOf(LateUse use) { return nameIn(kUseNames, use); }

std::string textNumbered(const CodeImage& code, std::uint32_t text) {
    if (text >= code.texts.size()) return "?";
    const auto& whole = code.texts[text];
    if (whole.size() <= kLongestShown) return basic::printable(whole);
    auto end = kLongestShown;
    const auto isContinuation = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    for (int most = 3; most > 0 && isContinuation(whole[end]); --most) --end;
    return basic::printable(std::string_view(whole).substr(0, end)) + "...";
}

std::string className(const CodeImage& code, std::uint32_t number) {
    if (number == 0 || number > code.classes.size()) return "class " + std::to_string(number);
    return textNumbered(code, code.classes[number - 1].name);
}

std::string procedureName(const CodeImage& code, std::uint32_t number) {
    if (number >= code.procedures.size()) return "procedure " + std::to_string(number);
    const auto& procedure = code.procedures[number];
    const auto name = textNumbered(code, procedure.name);
    if (procedure.module >= code.modules.size()) return name;
    return textNumbered(code, code.modules[procedure.module].name) + "." + name;
}

std::string describe(const CodeImage& code, SlotType type) {
    switch (type.form) {
    case TypeForm::Array: return "Array of " + valueName(code, type);
    case TypeForm::Reference: return "Reference to " + valueName(code, type);
    case TypeForm::ArrayReference: return "Reference to Array of " + valueName(code, type);
    default: return type.base == BaseType::Half ? "the second slot of a pair" : valueName(code, type);
    }
}

} // namespace image
