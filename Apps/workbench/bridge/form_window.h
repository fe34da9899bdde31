#pragma once
// The window of a form while it is shown.
#include "Apps/workbench/bridge/binder.h"
#include <QDialog>
#include <QEventLoop>

namespace workbench {

/// Loads forms/TYPENAME.ui, which is made to be edited in Qt Designer: object names are the names of the controls.
/// Error 53 for a form without such a file.
class FormWindow final : public QDialog {
public:
    FormWindow(fernwick::Form& form, QWidget* parent);

    /// Shows the form, runs its first Activate when it stands, and turns Qt's loop until it is hidden or unloaded. An
    /// error that a handler let out ends it and comes out here.
    void run();
    /// The form comes to the front again.
    void activateForm();

protected:
    /// A progress form has no close box; another form unloads.
    void closeEvent(QCloseEvent* event) override;
    /// Escape presses the button that says so.
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
