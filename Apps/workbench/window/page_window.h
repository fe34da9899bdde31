#pragma once
#include <QString>
#include <QWidget>

namespace workbench {

/// Shows a document that no other program can show: a page in a window of its own, an address or another file by its
/// name in a box.
void showWithoutBrowser(const QString& document, QWidget* window);

} // namespace workbench
