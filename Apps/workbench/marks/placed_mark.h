#pragma once
// Marks of lines that outlive the editor of their text.
#include <QString>
#include <QStringList>
#include <vector>

namespace workbench {

/// A line (from 0), and its text without blanks around it, by which it is found again in a text that changed.
struct PlacedMark {
    int line = 0;
    QString text;

    friend bool operator==(const PlacedMark&, const PlacedMark&) = default;
};

/// Returns the nearest line with the text of a mark; -1 for none.
int lineOf(const PlacedMark& mark, const QStringList& text);
/// Returns the present lines of marks. One whose line has another text now is moved to the nearest line with its text;
/// without one it is left out.
std::vector<int> linesOf(const std::vector<PlacedMark>& marks, const QStringList& text);

} // namespace workbench
