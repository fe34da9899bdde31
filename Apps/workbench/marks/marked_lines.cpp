#include "Apps/workbench/marks/marked_lines.h"
#include "Apps/workbench/editing/scintilla.h"

namespace workbench {

bool MarkedLines::contains(int line) const { return (text_.markersAtLine(line) & (1u << marks_.front())) != 0; }

void MarkedLines::toggle(int line) {
    if (contains(line)) return remove(line);
    for (const auto mark : marks_) text_.markerAdd(line, mark);
}

void MarkedLines::remove(int line) {
    // lines that were joined may have a mark twice
    while (contains(line))
        for (const auto mark : marks_) text_.markerDelete(line, mark);
}

std::vector<int> MarkedLines::lines() const {
    std::vector<int> found;
    for (int line = text_.markerFindNext(0, 1u << marks_.front()); line >= 0;
         line = text_.markerFindNext(line + 1, 1u << marks_.front()))
        found.push_back(line);
    return found;
}

void MarkedLines::show(const std::vector<int>& lines) {
    for (const auto mark : marks_) text_.markerDeleteAll(mark);
    for (const int line : lines)
        if (line >= 0 && line < text_.lines() && !contains(line)) toggle(line);
}

} // namespace workbench
