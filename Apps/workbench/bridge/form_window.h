#pragma once
// The window of a form while it is shown.
#include "Apps/workbench/bridge/binder.h"
#include <QDialog>
#include <QEventLoop>

namespace workbench {

/// Loads forms/TYPENAME.ui, which can be edited in Qt Designer; object names are the names of the controls.
/// Error 53 for a form without such a file.
class FormWindow final : public QDialog {
public:
    FormWindow(fernwick::Form& form, QWidget* parent);

    /// Shows the form, raises its first Activate once it is visible, and runs Qt's loop until the form is hidden or
    /// unloaded. An error that a handler does not catch ends the loop and is thrown here.
    void run();
    /// Raises Activate again when the form comes to the front.
    void activateForm();
    /// Whether the form only shows progress: it has no buttons.
    bool isProgress() const;
    /// Whether the form has not been hidden or unloaded.
    bool isWanted() const { return form_.Visible() && !error_; }

protected:
    /// Unloads the form, unless it has no close box.
    void closeEvent(QCloseEvent* event) override;
    /// Called for Escape: presses the Cancel button.
    void reject() override;

private:
    void bindForm();
    void waitUntilDrawn();
    void endWith(std::exception_ptr error);

    fernwick::Form& form_;
    QEventLoop loop_;
    std::exception_ptr error_;
    Binding binding_{[this](std::exception_ptr error) { endWith(std::move(error)); }};
};

} // namespace workbench
