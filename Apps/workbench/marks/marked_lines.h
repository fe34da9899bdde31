#pragma once
#include "Apps/workbench/editing/margins.h"
#include <vector>

class QsciScintilla;

namespace workbench {

/// The lines (from 0) with one kind of mark. Marks move with their lines when the text is edited.
class MarkedLines {
public:
    /// The text outlives this. A line gets all of these marks together.
    MarkedLines(QsciScintilla& text, std::vector<MarkNumber> marks) : text_(text), marks_(std::move(marks)) {}

    bool contains(int line) const;
    void toggle(int line);
    void remove(int line);
    /// In ascending order.
    std::vector<int> lines() const;
    /// Marks these lines and no others; lines beyond the text are left out.
    void show(const std::vector<int>& lines);
    void clear() { show({}); }

private:
    QsciScintilla& text_;
    std::vector<MarkNumber> marks_;
};

} // namespace workbench
