#include "Components/QLToolkit/parser/ast.h"
#include <algorithm>

namespace qltoolkit {

std::uint32_t Module::codeLine(std::uint32_t physicalLine) const {
    if (physicalLine < source.codeBegin()) return 0;
    const auto hidden = std::lower_bound(hiddenLines.begin(), hiddenLines.end(), physicalLine);
    if (hidden != hiddenLines.end() && *hidden == physicalLine) return 0;
    return physicalLine - source.codeBegin() + 1 - static_cast<std::uint32_t>(hidden - hiddenLines.begin());
}

std::string stringValue(const SourceText& source, const StringExpr& e) {
    std::string text = source.decode(source.text(e.pos + 1, e.pos + 1 + e.length));
    if (e.detail == 0) return text;
    std::string single;
    for (std::size_t i = 0; i < text.size(); ++i) {
        single += text[i];
        if (text[i] == '"') ++i;
    }
    return single;
}

} // namespace qltoolkit
