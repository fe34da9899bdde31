#include "Apps/workbench/drawing/classic_edges.h"
#include "Apps/workbench/drawing/control_painters.h"
#include <algorithm>

namespace workbench {

namespace {

const QColor kPartFace("#d4d0c8"), kPartEdge("#808080"), kPartFill("#0a246a");
constexpr double kPartInset = 3;

void drawPart(QPainter& painter, const QRectF& place, const ControlLook& look, const QString& text) {
    auto caption = look;
    caption.fore = Qt::black;
    caption.wrapped = false;
    drawCaption(painter, place.adjusted(kPartInset, 0, -kPartInset, 0), caption, int(Qt::AlignLeft | Qt::AlignVCenter),
                QFontMetricsF(look.font).elidedText(text, Qt::ElideRight, place.width() - 2 * kPartInset));
}

/// Fills the control and draws its border. Returns the place within, to which further drawing is confined.
QRectF drawGround(QPainter& painter, const DrawnControl& control) {
    painter.fillRect(control.place, control.look.back);
    const auto inner = drawBorder(painter, control.place, control.look.border);
    painter.setClipRect(inner, Qt::IntersectClip);
    return inner;
}

/// 0 for a part without a width.
double widthOf(const ControlLook& look, qsizetype part) {
    return std::size_t(part) < look.widths.size() ? look.widths[std::size_t(part)] : 0;
}

/// The widths of parts side by side; those without a width share the rest.
std::vector<double> widthsWithin(const ControlLook& look, double whole) {
    auto widths = look.widths;
    widths.resize(std::size_t(look.items.size()));
    double used = 0;
    for (const double width : widths) used += width;
    const auto sharing = std::count(widths.begin(), widths.end(), 0.0);
    for (double& width : widths)
        if (width == 0) width = std::max(0.0, whole - used) / double(sharing);
    return widths;
}

} // namespace

void drawColumns(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    const auto inner = drawGround(painter, control);
    const double height = QFontMetricsF(look.font).height() + 4;
    if (look.items.isEmpty()) drawPart(painter, {inner.topLeft(), QSizeF(inner.width(), height)}, look, control.name);
    double left = inner.left();
    for (qsizetype i = 0; i < look.items.size(); ++i) {
        const QRectF header(left, inner.top(), widthOf(look, i), height);
        drawPart(painter, drawRaised(painter, header, kPartFace), look, look.items[i]);
        left = header.right();
    }
}

/// A root with three entries, as the language's own designer shows a tree.
void drawTree(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    const auto inner = drawGround(painter, control);
    const double height = QFontMetricsF(look.font).height() + 2;
    constexpr double kIndent = 16;
    constexpr int kEntries = 3;
    painter.setPen(QPen(kPartEdge, 1, Qt::DotLine));
    const double stem = inner.left() + kIndent / 2, middle = height / 2;
    painter.drawLine(QPointF(stem, inner.top() + height), QPointF(stem, inner.top() + kEntries * height + middle));
    for (int i = 0; i <= kEntries; ++i) {
        const double top = inner.top() + i * height;
        const double indent = i == 0 ? 0 : kIndent;
        if (i > 0) {
            painter.setPen(QPen(kPartEdge, 1, Qt::DotLine));
            painter.drawLine(QPointF(stem, top + middle), QPointF(stem + kIndent / 2, top + middle));
        }
        const auto text = i == 0 ? control.name : QString("Entry %1").arg(i);
        drawPart(painter, {inner.left() + indent, top, inner.width() - indent, height}, look, text);
    }
}

void drawToolBar(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    constexpr double kButton = 22, kGap = 8;
    const auto& place = control.place;
    painter.fillRect(place, kPartFace);
    const QFontMetricsF metrics(look.font);
    double left = place.left() + 2;
    for (qsizetype i = 0; i < look.items.size(); ++i) {
        const double fixed = widthOf(look, i);
        if (look.items[i] == "-" || fixed > 0) {
            left += fixed > 0 ? fixed : kGap;
            continue;
        }
        const double width = std::max(kButton, metrics.horizontalAdvance(look.items[i]) + 2 * kPartInset);
        const QRectF button(left, place.top() + 2, width, std::min(kButton, place.height() - 4));
        drawPart(painter, drawRaised(painter, button, kPartFace), look, look.items[i]);
        left += width;
    }
    if (look.items.isEmpty()) drawPart(painter, place, look, control.name);
    painter.setPen(kPartEdge);
    painter.drawLine(place.bottomLeft() - QPointF(0, 1), place.bottomRight() - QPointF(0, 1));
}

void drawStatusBar(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    painter.fillRect(control.place, kPartFace);
    double left = control.place.left();
    const auto widths = widthsWithin(look, control.place.width());
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const QRectF panel(left, control.place.top() + 2, widths[i] - 2, control.place.height() - 2);
        drawBorder(painter, panel, ControlBorder::Sunken);
        drawPart(painter, panel, look, look.items[qsizetype(i)]);
        left += widths[i];
    }
    if (widths.empty()) drawPart(painter, control.place, look, control.name);
}

void drawProgress(QPainter& painter, const DrawnControl& control) {
    painter.fillRect(control.place, kPartFace);
    const auto inner = drawBorder(painter, control.place, ControlBorder::Sunken).adjusted(1, 1, -1, -1);
    auto done = inner;
    const double part = std::max(control.look.thumb, 0.0);
    if (control.look.across)
        done.setWidth(inner.width() * part);
    else
        done.setTop(inner.bottom() - inner.height() * part);
    painter.fillRect(done, kPartFill);
}

void drawSlider(QPainter& painter, const DrawnControl& control) {
    const auto& place = control.place;
    constexpr double kTrack = 4, kThumb = 11, kMargin = 6;
    painter.fillRect(place, kPartFace);
    const bool across = control.look.across;
    const double length = (across ? place.width() : place.height()) - 2 * kMargin - kThumb;
    const double at = kMargin + std::max(0.0, length) * control.look.thumb;
    const auto c = place.center();
    const auto track = across ? QRectF(place.left() + kMargin, c.y() - kTrack / 2, place.width() - 2 * kMargin, kTrack)
                              : QRectF(c.x() - kTrack / 2, place.top() + kMargin, kTrack, place.height() - 2 * kMargin);
    drawBorder(painter, track, ControlBorder::Sunken);
    drawRaised(painter,
               across ? QRectF(place.left() + at, c.y() - kThumb, kThumb, 2 * kThumb)
                      : QRectF(c.x() - kThumb, place.top() + at, 2 * kThumb, kThumb),
               kPartFace);
}

void drawDateBox(QPainter& painter, const DrawnControl& control) {
    painter.fillRect(control.place, control.look.back);
    const auto inner = drawBorder(painter, control.place, ControlBorder::Sunken);
    const double width = std::min(kBarWidth, inner.width());
    drawArrowButton(painter, {inner.right() - width, inner.top(), width, inner.height()}, Pointing::Down);
    drawPart(painter, inner.adjusted(0, 0, -width, 0), control.look, "31/12/2000");
}

void drawUpDown(QPainter& painter, const DrawnControl& control) {
    const auto& place = control.place;
    const auto half =
        control.look.across ? QSizeF(place.width() / 2, place.height()) : QSizeF(place.width(), place.height() / 2);
    const bool across = control.look.across;
    drawArrowButton(painter, {place.topLeft(), half}, across ? Pointing::Left : Pointing::Up);
    const auto second = across ? QPointF(half.width(), 0) : QPointF(0, half.height());
    drawArrowButton(painter, {place.topLeft() + second, half}, across ? Pointing::Right : Pointing::Down);
}

/// To the first, previous, next and last record, with the caption between.
void drawDataBar(QPainter& painter, const DrawnControl& control) {
    const double side = std::min(kBarWidth + 2, control.place.width() / 4);
    painter.fillRect(control.place, control.look.back);
    auto inner = drawBorder(painter, control.place, ControlBorder::Sunken);
    for (const int i : {0, 1}) {
        drawArrowButton(painter, {inner.left() + i * side, inner.top(), side, inner.height()}, Pointing::Left);
        drawArrowButton(painter, {inner.right() - (i + 1) * side, inner.top(), side, inner.height()}, Pointing::Right);
    }
    drawPart(painter, inner.adjusted(2 * side, 0, -2 * side, 0), control.look, control.look.text);
}

} // namespace workbench
