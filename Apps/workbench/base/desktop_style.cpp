#include "Apps/workbench/base/desktop_style.h"
#include "Apps/workbench/base/theme.h"
#include <QPainter>
#include <QStyleOption>

namespace workbench {

namespace {

QPen edgePen(const QStyleOption& option) {
    const bool focused = (option.state & QStyle::State_HasFocus) != 0;
    return QPen(focused ? option.palette.color(QPalette::Highlight) : edgeColour(currentTheme()), focused ? 2 : 1);
}

/// The mark of a box or circle that is ticked, or neither ticked nor empty.
void drawTick(QPainter& painter, const QRectF& box, const QStyleOption& option) {
    const auto ink = option.palette.color(QPalette::Text);
    if ((option.state & QStyle::State_NoChange) != 0) return painter.fillRect(box.adjusted(3, 3, -3, -3), ink);
    if ((option.state & QStyle::State_On) == 0) return;
    painter.setPen(QPen(ink, box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](double x, double y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
    painter.drawPolyline(QPolygonF{at(0.25, 0.52), at(0.43, 0.7), at(0.76, 0.3)});
}

void drawCheckBox(QPainter& painter, const QStyleOption& option) {
    const auto box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edgePen(option));
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.drawRoundedRect(box, 2, 2);
    drawTick(painter, box, option);
}

/// Dashes in the colour of the text, which is seen on a selected row too.
void drawFocus(QPainter& painter, const QStyleOption& option) {
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    painter.setPen(QPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(1, 1, -2, -2));
}

} // namespace

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    painter->save();
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck: drawCheckBox(*painter, *option); break;
    case PE_FrameFocusRect: drawFocus(*painter, *option); break;
    case PE_FrameLineEdit:
        painter->setPen(edgePen(*option));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        break;
    default: QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

QPixmap DesktopStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& picture, const QStyleOption* option) const {
    return mode == QIcon::Selected ? picture : QProxyStyle::generatedIconPixmap(mode, picture, option);
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace workbench
