#include "Apps/workbench/drawing/classic_edges.h"
#include "Apps/workbench/drawing/control_painters.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double kPlaceholderText = 11;
const QColor kDrawnFace("#d4d0c8");

/// Draws a dashed box with a line of text.
void drawPlaceholder(QPainter& painter, const QRectF& place, const QString& text) {
    painter.setPen(QPen(Qt::darkGray, 1, Qt::DashLine));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    auto font = painter.font();
    font.setPixelSize(int(kPlaceholderText));
    painter.setFont(font);
    painter.setPen(Qt::darkGray);
    const auto inner = place.adjusted(2, 2, -2, -2);
    const auto shown = QFontMetricsF(font).elidedText(text, Qt::ElideRight, inner.width());
    painter.drawText(inner, int(Qt::AlignCenter), shown);
}

QPen penOf(const ControlLook& look) {
    return QPen(look.fore, look.penWidth, look.penStyle, Qt::FlatCap, Qt::MiterJoin);
}

} // namespace

void drawPicture(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control);
    const auto inner = drawBorder(painter, control.place, look.border);
    if (look.picture.isNull()) {
        if (look.unreadable) return drawPlaceholder(painter, inner, "(Picture)");
        if (!look.text.isEmpty()) return drawPlaceholder(painter, inner, look.text);
        if (look.border == ControlBorder::None) drawPlaceholder(painter, inner, {});
        return;
    }
    painter.save();
    painter.setClipRect(inner, Qt::IntersectClip);
    if (look.stretched)
        painter.drawPixmap(inner, look.picture, QRectF(look.picture.rect()));
    else
        painter.drawPixmap(inner.topLeft(), look.picture);
    painter.restore();
}

void drawShape(QPainter& painter, const DrawnControl& control) {
    enum { kRectangle, kSquare, kOval, kCircle, kRoundedRectangle, kRoundedSquare };
    const auto& look = control.look;
    const double half = look.penWidth / 2.0;
    auto area = control.place.adjusted(half, half, -half, -half);
    if (look.shape == kSquare || look.shape == kCircle || look.shape == kRoundedSquare) {
        const double side = std::min(area.width(), area.height());
        area = {area.center() - QPointF(side, side) / 2, QSizeF(side, side)};
    }
    const double radius = std::min(area.width(), area.height()) / 6;
    const auto draw = [&](const QBrush& brush) {
        painter.setBrush(brush);
        if (look.shape == kOval || look.shape == kCircle) return painter.drawEllipse(area);
        if (look.shape >= kRoundedRectangle) return painter.drawRoundedRect(area, radius, radius);
        painter.drawRect(area);
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, look.shape >= kOval);
    painter.setPen(Qt::NoPen);
    if (!look.transparent) draw(look.back);
    painter.setPen(penOf(look));
    draw(QBrush(look.fill, look.brush));
    painter.restore();
}

void drawLine(QPainter& painter, const DrawnControl& control) {
    painter.setPen(penOf(control.look));
    painter.drawLine(control.place.topLeft(), control.place.bottomRight());
}

void drawGrid(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control);
    const auto inner = drawBars(painter, drawBorder(painter, control.place, look.border), look);
    if (look.columns == 0 || look.rows == 0) return;
    const double row = QFontMetricsF(look.font).height() + 4, column = inner.width() / look.columns;
    const QRectF cells(inner.topLeft(), QSizeF(inner.width(), std::min(inner.height(), row * look.rows)));
    painter.save();
    painter.setClipRect(inner, Qt::IntersectClip);
    painter.fillRect(QRectF(cells.left(), cells.top(), cells.width(), row * look.fixedRows), kDrawnFace);
    painter.fillRect(QRectF(cells.left(), cells.top(), column * look.fixedColumns, cells.height()), kDrawnFace);
    painter.setPen(look.gridLines ? look.fill : kDrawnFace);
    for (int i = 1; i <= look.rows && row * i <= inner.height(); ++i)
        painter.drawLine(QLineF(cells.left(), cells.top() + row * i, cells.right(), cells.top() + row * i));
    for (int i = 1; i < look.columns; ++i)
        painter.drawLine(QLineF(cells.left() + column * i, cells.top(), cells.left() + column * i, cells.bottom()));
    painter.restore();
}

void drawHidden(QPainter& painter, const DrawnControl& control) {
    const auto inner = drawRaised(painter, control.place, kDrawnFace).adjusted(3, 3, -3, -3);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1.2));
    if (control.className.endsWith("Timer", Qt::CaseInsensitive) || control.className.endsWith("Alarm")) {
        const auto centre = inner.center();
        painter.setBrush(Qt::white);
        painter.drawEllipse(inner);
        painter.drawLine(centre, centre - QPointF(0, inner.height() / 2 - 3));
        painter.drawLine(centre, centre + QPointF(inner.width() / 2 - 5, 0));
    } else {
        auto font = painter.font();
        font.setPixelSize(int(kPlaceholderText));
        font.setBold(true);
        painter.setFont(font);
        auto word = control.className;
        if (word.startsWith("QL")) word.remove(0, 2);
        painter.drawText(inner.adjusted(-3, 0, 3, 0), int(Qt::AlignCenter), word.left(3));
    }
    painter.restore();
}

/// One line, as several rarely fit; the designer shows the rest as a tip.
void drawOther(QPainter& painter, const DrawnControl& control) {
    painter.fillRect(control.place, control.look.back);
    drawPlaceholder(painter, control.place, QString("%1 (%2)").arg(control.name, control.className));
}

void drawUserControl(QPainter& painter, const DrawnControl& control) {
    fillBack(painter, control);
    painter.save();
    painter.setClipRect(control.place, Qt::IntersectClip);
    painter.drawPixmap(control.place.topLeft(), control.look.picture);
    painter.restore();
}

} // namespace workbench
