#pragma once
#include <QLabel>

class QsciScintilla;

namespace workbench {

/// A text below a position of an editor, such as the parameters of a call.
class Tip final : public QLabel {
public:
    explicit Tip(QsciScintilla& text);

    /// Shows rich text below the line of a position.
    void showAt(const QString& richText, int position);

private:
    QsciScintilla& text_;
};

} // namespace workbench
