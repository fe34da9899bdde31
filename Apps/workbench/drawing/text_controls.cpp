#include "Apps/workbench/drawing/classic_edges.h"
#include "Apps/workbench/drawing/control_painters.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double kTextInset = 2;

int captionFlags(const ControlLook& look) { return look.mnemonic ? int(Qt::TextShowMnemonic) : 0; }

/// An empty list shows its name, as in the language's own designer.
QStringList itemsToShow(const DrawnControl& control) {
    return control.look.items.isEmpty() ? QStringList(control.name) : control.look.items;
}

} // namespace

void drawLabel(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control);
    const auto inner = drawBorder(painter, control.place, look.border);
    drawCaption(painter, inner, look, int(look.alignment | Qt::AlignTop) | captionFlags(look), look.text);
}

void drawField(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control);
    auto inner = drawBars(painter, drawBorder(painter, control.place, look.border), look);
    inner.adjust(kTextInset, look.wrapped ? 0 : 1, -kTextInset, 0);
    drawCaption(painter, inner, look, int(look.alignment | (look.wrapped ? Qt::AlignTop : Qt::AlignVCenter)),
                look.text);
}

void drawButton(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control);
    auto inner = drawBorder(painter, control.place, look.border);
    if (!look.picture.isNull()) {
        const auto size = QSizeF(look.picture.deviceIndependentSize());
        const double top = look.text.isEmpty() ? (inner.height() - size.height()) / 2 : 2;
        const QPointF at(inner.left() + (inner.width() - size.width()) / 2, inner.top() + top);
        painter.drawPixmap(at, look.picture);
        inner.setTop(std::min(at.y() + size.height(), inner.bottom()));
    }
    drawCaption(painter, inner, look, int(Qt::AlignCenter) | captionFlags(look), look.text);
}

void drawChoice(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    const auto& place = control.place;
    fillBack(painter, control);
    const double top = std::floor(place.center().y() - kCheckSize / 2);
    const QRectF box(look.boxRight ? place.right() - kCheckSize : place.left(), top, kCheckSize, kCheckSize);
    if (look.kind == ControlKind::CheckBox)
        drawCheck(painter, box, look.value);
    else
        drawOption(painter, box, look.value != 0);
    constexpr double kGap = kCheckSize + 4;
    const auto text = place.adjusted(look.boxRight ? 0 : kGap, 0, look.boxRight ? -kGap : 0, 0);
    drawCaption(painter, text, look, int(Qt::AlignLeft | Qt::AlignVCenter) | captionFlags(look), look.text);
}

void drawFrame(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    const auto& place = control.place;
    fillBack(painter, control);
    if (look.border == ControlBorder::None) return;
    const QFontMetricsF metrics(look.font);
    constexpr double kTitleIndent = 8;
    const auto title = metrics.size(Qt::TextShowMnemonic, look.text);
    const auto edge = place.adjusted(0, std::floor(metrics.ascent() / 2), 0, 0);
    if (look.border == ControlBorder::Single) {
        painter.setPen(Qt::black);
        painter.drawRect(edge.adjusted(0, 0, -1, -1));
    } else {
        painter.setPen(Qt::white);
        painter.drawRect(edge.adjusted(1, 1, -1, -1));
        painter.setPen(QColor("#808080"));
        painter.drawRect(edge.adjusted(0, 0, -2, -2));
    }
    if (look.text.isEmpty()) return;
    const QRectF text(place.left() + kTitleIndent, place.top(), title.width() + 2, title.height());
    painter.fillRect(text, look.back);
    drawCaption(painter, text, look, int(Qt::AlignLeft | Qt::AlignTop) | captionFlags(look), look.text);
}

void drawList(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control);
    const auto inner = drawBars(painter, drawBorder(painter, control.place, look.border), look);
    const double height = std::max(1.0, QFontMetricsF(look.font).height());
    painter.save();
    painter.setClipRect(inner, Qt::IntersectClip);
    double top = inner.top();
    for (const auto& item : itemsToShow(control)) {
        if (top >= inner.bottom()) break;
        if (look.checks) drawCheck(painter, {inner.left() + 1, top + 1, kCheckSize, kCheckSize}, 0);
        const double indent = kTextInset + (look.checks ? kCheckSize + 2 : 0);
        drawCaption(painter, {inner.left() + indent, top, inner.width(), height}, look, int(Qt::AlignLeft), item);
        top += height;
    }
    painter.restore();
}

void drawCombo(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    auto place = control.place;
    fillBack(painter, control);
    auto inner = drawBorder(painter, place, look.border);
    if (look.arrow) {
        const double width = std::min(kBarWidth, inner.width());
        drawArrowButton(painter, {inner.right() - width, inner.top(), width, inner.height()}, Pointing::Down);
        inner.setRight(inner.right() - width);
    }
    inner.adjust(kTextInset, 0, 0, 0);
    drawCaption(painter, inner, look, int(Qt::AlignLeft | Qt::AlignVCenter),
                look.text.isEmpty() ? control.name : look.text);
}

} // namespace workbench
