#pragma once
#include <QKeySequence>
#include <QLineEdit>
#include <functional>

namespace workbench {

/// Shows a key and takes the next one that is pressed. Backspace and Delete remove it. Tab, Return, Escape and the
/// letters of the dialog keep their meaning.
class KeyField final : public QLineEdit {
public:
    KeyField();

    void showKey(const QKeySequence& key);
    /// Called with each key that was pressed; empty to remove the key.
    std::function<void(const QKeySequence&)> pressed = [](const QKeySequence&) {};

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace workbench
