#pragma once
// The check of the line that the user leaves.
#include <QObject>
#include <functional>
#include <map>

class QsciScintilla;

namespace workbench {

/// Marks statements with a syntax error in the margin until they are changed.
class LineCheck final : public QObject {
public:
    /// Belongs to the text.
    explicit LineCheck(QsciScintilla& text);

    /// Checks the statement of a line that the user edited and left.
    void check(int line);
    /// The error of a line (from 0); "" for none.
    QString textAt(int line) const;
    /// Called with the error of the line that was left.
    std::function<void(const QString&)> found = [](const QString&) {};

private:
    void removeFrom(int first, int last);

    QsciScintilla& text_;
    std::map<int, QString> texts_; ///< by the handle of the mark
};

} // namespace workbench
