#include "Apps/workbench/bridge/form_window.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/bridge/drawn_form.h"
#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace workbench {

FormWindow::FormWindow(fernwick::Form& form, QWidget* parent) : QDialog(parent), form_(form) {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(drawnForm(form, this));
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    setObjectName(form.typeName());
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowCloseButtonHint, form.ControlBox);
    bindForm();
}

void FormWindow::bindForm() {
    bindControls(form_, *this, binding_);
    binding_.show(form_.Caption, [this](const std::string& caption) { setWindowTitle(qt(caption)); });
    binding_.show(form_.MousePointer, [this](int shape) {
        if (shape == fernwick::vbHourglass)
            setCursor(Qt::WaitCursor);
        else
            unsetCursor();
    });
    binding_.keep(form_.Refreshed.connect([this] { repaint(); }));
    binding_.keep(form_.Visible.watch([this](bool visible) {
        if (visible) return;
        hide(); // at once, as its handler may now show another form or open a project
        loop_.quit();
    }));
}

/// The window system shows a window asynchronously. Without waiting, the work of a progress form would keep it from
/// being drawn.
void FormWindow::waitUntilDrawn() {
    constexpr int kPatience = 500, kTurn = 10; // milliseconds
    QElapsedTimer waited;
    waited.start();
    while (!windowHandle()->isExposed() && waited.elapsed() < kPatience)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kTurn);
    repaint();
}

void FormWindow::run() {
    show();
    waitUntilDrawn();
    QTimer::singleShot(0, this, [this] { activateForm(); });
    if (form_.Visible() && !error_) loop_.exec(); // a timer may have ended it already
    hide();
    if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
}

bool FormWindow::isProgress() const {
    const auto controls = form_.Controls();
    return std::none_of(controls.begin(), controls.end(),
                        [](const auto* control) { return dynamic_cast<const fernwick::CommandButton*>(control); });
}

void FormWindow::activateForm() {
    binding_.act([this] { form_.activate(); });
}

void FormWindow::endWith(std::exception_ptr error) {
    if (!error_) error_ = std::move(error);
    loop_.quit();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the form decides
    if (form_.ControlBox && form_.CloseBoxCancels) return reject();
    if (form_.ControlBox) binding_.act([this] { form_.Unload(); });
}

void FormWindow::reject() {
    for (auto* control : form_.Controls())
        if (auto* button = dynamic_cast<fernwick::CommandButton*>(control); button && button->Cancel)
            return binding_.act([button] { button->press(); });
}

} // namespace workbench
