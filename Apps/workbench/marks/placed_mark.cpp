#include "Apps/workbench/marks/placed_mark.h"
#include <algorithm>

namespace workbench {

int lineOf(const PlacedMark& mark, const QStringList& text) {
    const int count = int(text.size());
    const auto is = [&](int line) { return line >= 0 && line < count && text[line].trimmed() == mark.text; };
    for (int distance = 0; distance <= std::max(mark.line, count - mark.line); ++distance) {
        if (is(mark.line + distance)) return mark.line + distance;
        if (is(mark.line - distance)) return mark.line - distance;
    }
    return -1;
}

std::vector<int> linesOf(const std::vector<PlacedMark>& marks, const QStringList& text) {
    std::vector<int> lines;
    for (const auto& mark : marks)
        if (const int line = lineOf(mark, text); line >= 0) lines.push_back(line);
    return lines;
}

} // namespace workbench
