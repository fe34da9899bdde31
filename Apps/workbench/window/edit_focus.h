#pragma once
#include "Add-in/platform/events.h"
#include "Apps/workbench/window/commands.h"
#include <QObject>
#include <QPointer>
#include <functional>
#include <string>

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
    /// The names of the steps on a form; "" for a text.
    std::string stepToUndo() const;
    std::string stepToRedo() const;
    void undo();
    void redo();
    void cut();
    void copy();
    void paste();
    void remove();
    void selectAll();

private:
    /// Calls a slot that all text widgets have, such as "cut". False if no text has the focus.
    bool edit(const char* slot);
    void follow(QWidget* now);
    bool isInEditor() const;
    bool isText() const;
    /// On the form in front, or on the windows that show what is selected on it.
    bool isOnForm() const;
    /// On the form in front itself.
    bool isOnDesigner() const;
    bool isWithin(const QWidget& part) const;

    CodeWindows& code_;
    DesignDesk& design_;
    QPointer<QWidget> focus_;
    fernwick::Subscription selection_;
};

} // namespace workbench
