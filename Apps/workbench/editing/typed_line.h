#pragma once
#include "Apps/workbench/editing/keyword_case.h"
#include <QObject>
#include <functional>
#include <vector>

class QsciScintilla;

namespace workbench {

/// The line in which the user types. When the cursor leaves it, its keywords and names get their proper case, and a line
/// that was typed whole and ends a block is indented like the one that opens it. This is a separate undo step.
class TypedLine final : public QObject {
public:
    /// The names that can be used in a line.
    using NamesAt = std::function<NameLookup(int line)>;

    /// The text outlives this.
    TypedLine(QsciScintilla& text, NamesAt namesAt);

    /// Called after each edit with the line (from 0) in which the user typed, or -1 for any other edit. Lines that are
    /// added or removed, and edits elsewhere, end the typing.
    void typed(int line, int linesAdded);
    /// Corrects the line before the cursor leaves it. The cursor stays at its character.
    void finish();
    void forget();
    /// Called with a line (from 0) that was typed in and left, once it is corrected and the key has had its effect.
    std::function<void(int)> left = [](int) {};

private:
    struct Left {
        int line = -1;        ///< -1 for none
        bool isWhole = false; ///< it was blank before
    };
    void leaveSoon();
    void leave();
    void correct(const Left& typed);

    QsciScintilla& text_;
    NamesAt namesAt_;
    Left now_;
    /// Lines that were left for another one, as by automatic indentation after Enter.
    std::vector<Left> leftLines_;
};

} // namespace workbench
