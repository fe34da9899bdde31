#include "Apps/workbench/bridge/qt_user.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/bridge/file_dialog.h"
#include "Apps/workbench/bridge/form_window.h"
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <array>

namespace workbench {

namespace {

using namespace fernwick;

constexpr int kButtons = 0xF, kIcon = 0xF0, kDefaultButton = 0xF00;

struct BoxButton {
    QMessageBox::StandardButton drawn;
    VbMsgBoxResult result;
};
constexpr BoxButton kOk{QMessageBox::Ok, vbOK}, kCancel{QMessageBox::Cancel, vbCancel}, kYes{QMessageBox::Yes, vbYes},
    kNo{QMessageBox::No, vbNo};

/// In the order that vbDefaultButton1, 2 and 3 refer to.
std::vector<BoxButton> buttonsOf(int style) {
    switch (style & kButtons) {
    case vbOKCancel: return {kOk, kCancel};
    case vbYesNoCancel: return {kYes, kNo, kCancel};
    case vbYesNo: return {kYes, kNo};
    default: return {kOk};
    }
}

QMessageBox::Icon boxIconOf(int style) {
    switch (style & kIcon) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

} // namespace

/// A window in front of the latest form. A progress form is hidden meanwhile: it has nothing to press, and two windows
/// on top of each other confuse.
class QtUser::InFront {
public:
    explicit InFront(const QtUser& user) : form_(user.forms_.empty() ? nullptr : user.forms_.back()) {
        isHidden_ = form_ && form_->isVisible() && form_->isProgress();
        if (isHidden_) form_->hide();
    }
    InFront(const InFront&) = delete;
    ~InFront() {
        if (isHidden_ && form_->isWanted()) form_->show();
        if (form_) form_->activateForm();
    }

private:
    FormWindow* form_;
    bool isHidden_;
};

/// The parent of the next window.
QWidget* QtUser::top() const {
    const bool isAbove = !forms_.empty() && forms_.back()->isVisible();
    return isAbove ? forms_.back() : mainWindow;
}

void QtUser::showModal(Form& form) {
    {
        const InFront inFront(*this);
        FormWindow window(form, top());
        struct Standing {
            std::vector<FormWindow*>& forms;
            Standing(std::vector<FormWindow*>& all, FormWindow* one) : forms(all) { forms.push_back(one); }
            Standing(const Standing&) = delete;
            ~Standing() { forms.pop_back(); }
        } standing{forms_, &window};
        window.run();
    }
    closed(form);
}

int QtUser::MsgBox(const std::string& text, int buttons, const std::string& title) {
    const InFront inFront(*this);
    QMessageBox box(boxIconOf(buttons), qt(title), qt(text).remove('\r'), QMessageBox::NoButton, top());
    box.setTextFormat(Qt::PlainText);
    const auto offered = buttonsOf(buttons);
    QMessageBox::StandardButtons buttonsShown;
    for (const auto& button : offered) buttonsShown |= button.drawn;
    addButtons(box, buttonsShown);
    const auto chosen = std::size_t((buttons & kDefaultButton) / vbDefaultButton2);
    box.setDefaultButton(offered[std::min(chosen, offered.size() - 1)].drawn);
    const int pressed = box.exec();
    int result = vbCancel;
    for (const auto& button : offered)
        if (button.drawn == pressed) result = button.result;
    return result;
}

void QtUser::ShowSave(CommonDialog& dialog) { askForFile(dialog, FileQuestion::Save, top()); }

void QtUser::ShowOpen(CommonDialog& dialog) { askForFile(dialog, FileQuestion::Open, top()); }

void QtUser::MessageBeep(int) { QApplication::beep(); }

void QtUser::SetCursor(MousePointerShape shape) {
    if (shape != vbHourglass) return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QTimer::singleShot(0, qApp, [] { QGuiApplication::restoreOverrideCursor(); });
}

void QtUser::SetRedraw(bool redraw) {
    if (mainWindow) mainWindow->setUpdatesEnabled(redraw);
}

} // namespace workbench
