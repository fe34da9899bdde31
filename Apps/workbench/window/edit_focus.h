#pragma once
#include "Apps/workbench/window/commands.h"
#include <QObject>
#include <QPointer>
#include <functional>

class QWidget;

namespace workbench {

class CodeWindows;
class DesignDesk;

/// What the edit commands act on: the widget that has the focus, or had it before a menu was opened.
class EditFocus final : public QObject {
public:
    /// Both outlive this.
    EditFocus(CodeWindows& code, DesignDesk& design);

    /// Called when other commands may be enabled.
    std::function<void()> changed = [] {};

    bool allows(Enabled where) const;
    void undo();
    /// Calls a slot that all text widgets have, such as "cut". Does nothing if no text has the focus.
    void edit(const char* slot);

private:
    void follow(QWidget* now);
    bool isInEditor() const;
    bool isOnForm() const;

    CodeWindows& code_;
    DesignDesk& design_;
    QPointer<QWidget> focus_;
};

} // namespace workbench
