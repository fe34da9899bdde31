#pragma once
// Marks in the margin of an editor for the lines of messages.
#include <QObject>
#include <functional>
#include <string>
#include <vector>

class QsciScintilla;

namespace workbench {

/// The line of a message, from 1.
struct LineMark {
    int line = 0;
    bool isError = false;
    std::string text;

    friend bool operator==(const LineMark&, const LineMark&) = default;
};

/// Marks move with their lines when the text is edited. A tool tip on a marked line of a watched pane shows its messages.
class LineMarks final : public QObject {
public:
    /// The text outlives this.
    explicit LineMarks(QsciScintilla& text);

    /// Shows tool tips in a pane of the text.
    void watch(QsciScintilla& pane);
    /// Shows these marks; a line beyond the text is moved to the last one. Marks already shown stay where edits
    /// have moved them.
    void show(const std::vector<LineMark>& marks);
    /// The present lines of the marks, for putBack after the whole text was replaced.
    std::vector<int> lines() const;
    void putBack(const std::vector<int>& lines);
    /// The messages of a line (from 0), one per line.
    QString textAt(int line) const;
    /// Returns what else the tool tip of a line's margin shows; "" for nothing.
    std::function<QString(int line)> also = [](int) { return QString(); };

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int add(int line, bool isError);

    QsciScintilla& text_;
    std::vector<LineMark> marks_;
    std::vector<int> handles_; ///< of the marks, in order
};

} // namespace workbench
