#pragma once
#include <QFrame>

namespace workbench {

/// A small window below a cell. It closes with Esc, and by a click elsewhere.
class ValuePopup : public QFrame {
public:
    explicit ValuePopup(QWidget* parent);

    /// Shows the popup below a rectangle of the parent, or above it where the screen ends. It is deleted when it closes.
    void showAt(const QRect& cell);
};

} // namespace workbench
