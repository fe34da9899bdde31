#pragma once
// The editing component, restricted to characters that the file can hold.
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/options/code_look.h"
#include <functional>

namespace workbench {

class VbLexer;

class CodeInput final : public QsciScintilla {
public:
    /// Called with each text that the user types, pastes or drops, before it replaces anything.
    using Accepts = std::function<bool(const QString&)>;

    explicit CodeInput(Accepts accepts);

    void showIn(const CodeLook& look);
    /// Fits the margin of the line numbers to the number of lines.
    void widenMargin();

    /// Called before Enter divides a line, within the same undo step.
    std::function<void()> lineEnds = [] {};

    /// Accepts the selected name of the list that is open, as if the user had typed it.
    void complete();
    /// Whether the current change comes from the user's keys.
    bool isTyping() const { return typing_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;

private:
    void pressWithoutText(QKeyEvent& event);
    bool pressEnter(const QKeyEvent& event);

    void prepareMargins();
    void colourMarks(const CodeColours& colours);

    Accepts accepts_;
    VbLexer* lexer_;
    QColor procedureLines_; ///< not valid if there are none
    bool dragging_ = false, typing_ = false;
};

} // namespace workbench
