#include "Components/QLToolkit/names/library_constants.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include "Basic/utf8.h"

namespace qltoolkit {

namespace {

std::string textOfPart(std::string_view part) {
    if (part.size() >= 2 && part.front() == '"') return std::string(part.substr(1, part.size() - 2));
    const auto open = part.find('('), close = part.find(')');
    if (open == part.npos || close == part.npos) return {};
    std::string text;
    basic::appendCharacter(text, static_cast<char32_t>(basic::CLng(part.substr(open + 1, close - open - 1))));
    return text;
}

ConstantValue number(std::string_view literal) {
    ConstantValue value;
    const auto err = basic::attempt([&] {
        const double number = basic::CDbl(literal);
        if (number == basic::Fix(number) && number >= -2147483648.0 && number <= 2147483647.0)
            value = basic::CLng(literal);
        else
            value = number;
    });
    return err.Number == 0 ? value : ConstantValue();
}

} // namespace

ConstantValue libraryConstant(std::string_view literal) {
    if (basic::equalNoCase(literal, "True")) return true;
    if (basic::equalNoCase(literal, "False")) return false;
    if (literal.find_first_of("\"(") == literal.npos) return number(literal);
    std::string text;
    for (;;) {
        const auto join = literal.find('&');
        text += textOfPart(basic::Trim(literal.substr(0, join)));
        if (join == literal.npos) return text;
        literal.remove_prefix(join + 1);
    }
}

} // namespace qltoolkit
