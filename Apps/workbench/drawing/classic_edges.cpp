#include "Apps/workbench/drawing/classic_edges.h"
#include <algorithm>

namespace workbench {

namespace {

const QColor kEdgeFace("#d4d0c8"), kEdgeLight("#ffffff"), kEdgeShadow("#808080"), kEdgeDark("#404040"),
    kEdgeInk("#000000");

/// One ring: top and left in one colour, bottom and right in the other.
void drawRing(QPainter& painter, const QRectF& place, const QColor& topLeft, const QColor& bottomRight) {
    if (place.width() < 1 || place.height() < 1) return;
    painter.fillRect(QRectF(place.left(), place.top(), place.width(), 1), topLeft);
    painter.fillRect(QRectF(place.left(), place.top(), 1, place.height()), topLeft);
    painter.fillRect(QRectF(place.left(), place.bottom() - 1, place.width(), 1), bottomRight);
    painter.fillRect(QRectF(place.right() - 1, place.top(), 1, place.height()), bottomRight);
}

QRectF within(const QRectF& place, double edge) {
    const auto inner = place.adjusted(edge, edge, -edge, -edge);
    return inner.isValid() ? inner : QRectF(place.center(), QSizeF());
}

QRectF drawTrack(QPainter& painter, const QRectF& place) {
    painter.fillRect(place, QColor("#eae8e3"));
    return place;
}

} // namespace

QRectF drawBorder(QPainter& painter, const QRectF& place, ControlBorder border) {
    switch (border) {
    case ControlBorder::None: return place;
    case ControlBorder::Single: drawRing(painter, place, kEdgeInk, kEdgeInk); return within(place, 1);
    case ControlBorder::Raised:
        drawRing(painter, place, kEdgeLight, kEdgeDark);
        drawRing(painter, within(place, 1), kEdgeFace, kEdgeShadow);
        return within(place, 2);
    case ControlBorder::Sunken:
        drawRing(painter, place, kEdgeShadow, kEdgeLight);
        drawRing(painter, within(place, 1), kEdgeDark, kEdgeFace);
        return within(place, 2);
    }
    return place;
}

QRectF drawRaised(QPainter& painter, const QRectF& place, const QColor& surface) {
    painter.fillRect(place, surface);
    return drawBorder(painter, place, ControlBorder::Raised);
}

void drawTriangle(QPainter& painter, const QRectF& area, Pointing pointing, const QColor& colour) {
    const double half = std::clamp(std::min(area.width(), area.height()) / 4, 1.0, 4.0);
    const auto c = area.center();
    QPolygonF shape;
    switch (pointing) {
    case Pointing::Up: shape << QPointF(-half, half / 2) << QPointF(half, half / 2) << QPointF(0, -half / 2); break;
    case Pointing::Down: shape << QPointF(-half, -half / 2) << QPointF(half, -half / 2) << QPointF(0, half / 2); break;
    case Pointing::Left: shape << QPointF(half / 2, -half) << QPointF(half / 2, half) << QPointF(-half / 2, 0); break;
    case Pointing::Right: shape << QPointF(-half / 2, -half) << QPointF(-half / 2, half) << QPointF(half / 2, 0); break;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(shape.translated(c));
    painter.restore();
}

void drawArrowButton(QPainter& painter, const QRectF& place, Pointing pointing) {
    drawTriangle(painter, drawRaised(painter, place, kEdgeFace), pointing, kEdgeInk);
}

void drawScrollBar(QPainter& painter, const QRectF& place, bool across, double thumb) {
    const double length = across ? place.width() : place.height();
    const double thickness = across ? place.height() : place.width();
    const double button = std::min(std::max(thickness, 8.0), length / 2);
    const auto part = [&](double from, double size) {
        return across ? QRectF(place.left() + from, place.top(), size, thickness)
                      : QRectF(place.left(), place.top() + from, thickness, size);
    };
    drawTrack(painter, place);
    drawArrowButton(painter, part(0, button), across ? Pointing::Left : Pointing::Up);
    drawArrowButton(painter, part(length - button, button), across ? Pointing::Right : Pointing::Down);
    const double room = length - 3 * button;
    if (thumb >= 0 && room > 0) drawRaised(painter, part(button + room * thumb, button), kEdgeFace);
}

QRectF drawBars(QPainter& painter, const QRectF& place, const ControlLook& look) {
    auto rest = place;
    constexpr double kNoThumb = -1;
    if (look.barDown && place.width() > kBarWidth) rest.setRight(rest.right() - kBarWidth);
    if (look.barAcross && place.height() > kBarWidth) rest.setBottom(rest.bottom() - kBarWidth);
    if (rest.right() < place.right())
        drawScrollBar(painter, {rest.right(), rest.top(), kBarWidth, rest.height()}, false, kNoThumb);
    if (rest.bottom() < place.bottom())
        drawScrollBar(painter, {rest.left(), rest.bottom(), rest.width(), kBarWidth}, true, kNoThumb);
    if (rest.right() < place.right() && rest.bottom() < place.bottom())
        painter.fillRect(QRectF(rest.bottomRight(), place.bottomRight()), kEdgeFace);
    return rest;
}

void drawCaption(QPainter& painter, const QRectF& place, const ControlLook& look, int flags, const QString& text) {
    if (look.wrapped) flags |= Qt::TextWordWrap;
    painter.setFont(look.font);
    if (!look.enabled) {
        painter.setPen(kEdgeLight);
        painter.drawText(place.translated(1, 1), flags, text);
    }
    painter.setPen(look.enabled ? look.fore : kEdgeShadow);
    painter.drawText(place, flags, text);
}

void drawCheck(QPainter& painter, const QRectF& place, int value) {
    constexpr int kGrayed = 2;
    painter.fillRect(place, value == kGrayed ? kEdgeFace : kEdgeLight);
    drawBorder(painter, place, ControlBorder::Sunken);
    if (value == 0) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(value == kGrayed ? kEdgeShadow : kEdgeInk, 2));
    const auto at = place.topLeft();
    painter.drawPolyline(
        QPolygonF{{at.x() + 3.5, at.y() + 6.5}, {at.x() + 5.5, at.y() + 8.5}, {at.x() + 9.5, at.y() + 4}});
    painter.restore();
}

void drawOption(QPainter& painter, const QRectF& place, bool chosen) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kEdgeShadow, 1.5));
    painter.setBrush(kEdgeLight);
    painter.drawEllipse(place.adjusted(0.75, 0.75, -0.75, -0.75));
    painter.setPen(Qt::NoPen);
    painter.setBrush(kEdgeInk);
    if (chosen) painter.drawEllipse(place.center(), 2.2, 2.2);
    painter.restore();
}

} // namespace workbench
