#pragma once
// The editing component, restricted to characters that the file can hold.
#include "Apps/workbench/editing/scintilla.h"
#include <functional>

namespace workbench {

class CodeInput final : public QsciScintilla {
public:
    /// Called with each text that the user types, pastes or drops, before it replaces anything.
    using Accepts = std::function<bool(const QString&)>;

    explicit CodeInput(Accepts accepts) : accepts_(std::move(accepts)) {}

    /// Called before Enter divides a line, within the same undo step.
    std::function<void()> lineEnds = [] {};

    /// Whether the current change comes from the user's keys.
    bool isTyping() const { return typing_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;

private:
    void pressWithoutText(QKeyEvent& event);
    bool pressEnter(const QKeyEvent& event);

    Accepts accepts_;
    bool dragging_ = false, typing_ = false;
};

} // namespace workbench
