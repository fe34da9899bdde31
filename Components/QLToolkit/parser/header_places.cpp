#include "Components/QLToolkit/parser/header_places.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/parser/form_header.h"

namespace qltoolkit {

namespace {

std::string_view firstWord(std::string_view line) { return line.substr(0, line.find_first_of(" \t=")); }

bool beginsControl(std::string_view line, std::string_view control) {
    return basic::equalNoCase(firstWord(line), "Begin") &&
           basic::equalNoCase(line.substr(line.find_last_of(" \t") + 1), control);
}

} // namespace

Pos placeInHeader(const SourceText& source, std::string_view control, std::string_view property) {
    if (source.headerBlock() == 0) return 0;
    bool inControl = false;
    for (std::uint32_t at = source.headerBlock(); at < source.codeBegin(); ++at) {
        const auto whole = source.line(at);
        const auto line = trimmedHeaderText(whole);
        const auto pos = source.lineStart(at) + static_cast<Pos>(line.data() - whole.data());
        if (beginsControl(line, control)) {
            if (property.empty()) return pos;
            inControl = true;
        } else if (inControl && basic::equalNoCase(firstWord(line), property)) {
            return pos;
        }
    }
    return 0;
}

} // namespace qltoolkit
