#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/title.h"
#include <QAbstractButton>

namespace workbench {

namespace {

struct ButtonText {
    QMessageBox::StandardButton button;
    const char* text;
};
constexpr ButtonText kTexts[] = {
    {QMessageBox::Ok, "&OK"}, {QMessageBox::Cancel, "&Cancel"}, {QMessageBox::Yes, "&Yes"},
    {QMessageBox::No, "&No"}, {QMessageBox::Save, "&Save"},     {QMessageBox::Discard, "&Don't Save"},
};

} // namespace

void addButtons(QMessageBox& box, QMessageBox::StandardButtons buttons) {
    box.setStandardButtons(buttons);
    for (const auto& [button, text] : kTexts)
        if (auto* const drawn = box.button(button)) drawn->setText(text);
}

QMessageBox::StandardButton showBox(QWidget* window, QMessageBox::Icon icon, const QString& text,
                                    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton standard) {
    QMessageBox box(icon, kTitle, text, QMessageBox::NoButton, window);
    box.setTextFormat(Qt::PlainText);
    addButtons(box, buttons);
    box.setDefaultButton(standard);
    return QMessageBox::StandardButton(box.exec());
}

} // namespace workbench
