#include "Apps/workbench/properties/value_popup.h"
#include <QScreen>
#include <algorithm>

namespace workbench {

ValuePopup::ValuePopup(QWidget* parent) : QFrame(parent, Qt::Popup) {
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
}

void ValuePopup::showAt(const QRect& cell) {
    resize(sizeHint().expandedTo({cell.width(), 0}));
    const auto screen = parentWidget()->screen()->availableGeometry();
    const auto below = parentWidget()->mapToGlobal(cell.bottomLeft());
    const auto above = parentWidget()->mapToGlobal(cell.topLeft());
    const bool fits = below.y() + height() <= screen.bottom();
    const int left = std::clamp(below.x() + cell.width() - width(), screen.left(),
                                std::max(screen.left(), screen.right() - width()));
    move(left, fits ? below.y() + 1 : above.y() - height());
    show();
    setFocus();
}

} // namespace workbench
