#include "Apps/workbench/code/split_grip.h"
#include "Apps/workbench/base/theme.h"
#include <QMouseEvent>
#include <QPainter>

namespace workbench {

namespace {
constexpr int kHeight = 8, kLeastDrag = 20;
} // namespace

SplitGrip::SplitGrip(std::function<void(int y)> dragged, std::function<void()> doubleClicked)
    : dragged_(std::move(dragged)), doubleClicked_(std::move(doubleClicked)) {
    setObjectName("splitGrip");
    setFixedHeight(kHeight);
    setCursor(Qt::SplitVCursor);
    setToolTip("Drag down to split the window");
}

void SplitGrip::mousePressEvent(QMouseEvent* event) { event->accept(); }

void SplitGrip::mouseMoveEvent(QMouseEvent* event) {
    const int y = event->position().toPoint().y();
    if (event->buttons() == Qt::LeftButton && y >= kLeastDrag) dragged_(y);
}

void SplitGrip::mouseDoubleClickEvent(QMouseEvent*) { doubleClicked_(); }

void SplitGrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().button());
    painter.fillRect(rect().adjusted(2, kHeight / 2 - 1, -2, 1 - kHeight / 2), edgeColour(currentTheme()));
}

} // namespace workbench
