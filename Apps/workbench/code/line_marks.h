#pragma once
// Marks in the margin of an editor for lines that messages point to.
#include "Apps/workbench/base/theme.h"
#include <QObject>
#include <string>
#include <vector>

class QsciScintilla;

namespace workbench {

/// A line that a message points to, from 1.
struct LineMark {
    int line = 0;
    bool isError = false;
    std::string text;

    friend bool operator==(const LineMark&, const LineMark&) = default;
};

/// Marks move with their lines when the text is edited. The mouse over a marked line tells what the messages say.
class LineMarks final : public QObject {
public:
    /// The text outlives this.
    explicit LineMarks(QsciScintilla& text);

    /// Shows these; a line that the text does not have is its nearest. The same ones as before stay where edits have moved
    /// them.
    void show(const std::vector<LineMark>& marks);
    /// The lines where they are now, and the way back when the text has been replaced as a whole.
    std::vector<int> lines() const;
    void putBack(const std::vector<int>& lines);
    /// What the messages of a line (from 0) say, each on a line of its own.
    QString textAt(int line) const;
    void colour(Theme theme);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int add(int line, bool isError);

    QsciScintilla& text_;
    std::vector<LineMark> marks_;
    std::vector<int> handles_; ///< of the marks, in their order
};

} // namespace workbench
