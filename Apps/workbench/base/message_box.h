#pragma once
#include <QMessageBox>

namespace workbench {

/// Adds standard buttons, each with a letter for the keyboard.
void addButtons(QMessageBox& box, QMessageBox::StandardButtons buttons);

/// Shows a box with the program's title and returns the button that was pressed.
QMessageBox::StandardButton showBox(QWidget* window, QMessageBox::Icon icon, const QString& text,
                                    QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                    QMessageBox::StandardButton standard = QMessageBox::NoButton);

} // namespace workbench
