#include "Apps/workbench/designer/control_drawing.h"
#include "Apps/workbench/designer/classic_edges.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double kDimmed = 0.4, kTextInset = 2, kPlaceholderText = 11;
const QColor kDrawnFace("#d4d0c8");

int captionFlags(const ControlLook& look) { return look.mnemonic ? int(Qt::TextShowMnemonic) : 0; }

void fillBack(QPainter& painter, const QRectF& place, const ControlLook& look) {
    if (!look.transparent) painter.fillRect(place, look.back);
}

void drawLabel(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control.place, look);
    const auto inner = drawBorder(painter, control.place, look.border);
    drawCaption(painter, inner, look, int(look.alignment | Qt::AlignTop) | captionFlags(look), look.text);
}

void drawField(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control.place, look);
    auto inner = drawBars(painter, drawBorder(painter, control.place, look.border), look);
    inner.adjust(kTextInset, look.wrapped ? 0 : 1, -kTextInset, 0);
    drawCaption(painter, inner, look, int(look.alignment | (look.wrapped ? Qt::AlignTop : Qt::AlignVCenter)),
                look.text);
}

void drawButton(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control.place, look);
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
    fillBack(painter, place, look);
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
    fillBack(painter, place, look);
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

/// Lists show their name where they have no items yet, as in the designer.
QStringList itemsToShow(const DrawnControl& control) {
    return control.look.items.isEmpty() ? QStringList(control.name) : control.look.items;
}

void drawList(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control.place, look);
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
    fillBack(painter, place, look);
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

/// A framed box that says what stands there.
void drawPlaceholder(QPainter& painter, const QRectF& place, const QString& text) {
    painter.setPen(QPen(Qt::darkGray, 1, Qt::DashLine));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    auto font = painter.font();
    font.setPixelSize(int(kPlaceholderText));
    painter.setFont(font);
    painter.setPen(Qt::darkGray);
    painter.drawText(place.adjusted(2, 2, -2, -2), int(Qt::AlignCenter) | Qt::TextWordWrap, text);
}

void drawPicture(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    fillBack(painter, control.place, look);
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

QPen penOf(const ControlLook& look) {
    return QPen(look.fore, look.penWidth, look.penStyle, Qt::FlatCap, Qt::MiterJoin);
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
    fillBack(painter, control.place, look);
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

void drawTabs(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    const QFontMetricsF metrics(look.font);
    const double height = std::min(metrics.height() + 8, control.place.height());
    fillBack(painter, control.place, look);
    painter.setPen(Qt::gray);
    painter.drawRect(control.place.adjusted(0, height - 1, -1, -1));
    double left = control.place.left();
    for (const auto& item : look.items) {
        const auto text = item.isEmpty() ? control.name : item;
        const QRectF tab(left, control.place.top(), metrics.horizontalAdvance(text) + 12, height);
        painter.fillRect(tab, kDrawnFace);
        painter.setPen(Qt::gray);
        painter.drawRect(tab.adjusted(0, 0, -1, -1));
        drawCaption(painter, tab, look, int(Qt::AlignCenter), text);
        left = tab.right();
    }
}

/// A clock for what keeps time, the first letters of its class for all else that has no looks of its own.
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

void drawOther(QPainter& painter, const DrawnControl& control) {
    painter.fillRect(control.place, control.look.back);
    drawPlaceholder(painter, control.place, control.name + "\n" + control.className);
}

} // namespace

void drawControl(QPainter& painter, const DrawnControl& control) {
    painter.save();
    painter.setClipRect(control.clip, Qt::IntersectClip);
    if (!control.visible) painter.setOpacity(kDimmed);
    switch (control.look.kind) {
    case ControlKind::Label: drawLabel(painter, control); break;
    case ControlKind::TextBox: drawField(painter, control); break;
    case ControlKind::Button: drawButton(painter, control); break;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton: drawChoice(painter, control); break;
    case ControlKind::Frame: drawFrame(painter, control); break;
    case ControlKind::ListBox: drawList(painter, control); break;
    case ControlKind::ComboBox: drawCombo(painter, control); break;
    case ControlKind::PictureBox:
    case ControlKind::Image: drawPicture(painter, control); break;
    case ControlKind::Shape: drawShape(painter, control); break;
    case ControlKind::Line: drawLine(painter, control); break;
    case ControlKind::HScrollBar: drawScrollBar(painter, control.place, true, control.look.thumb); break;
    case ControlKind::VScrollBar: drawScrollBar(painter, control.place, false, control.look.thumb); break;
    case ControlKind::Grid: drawGrid(painter, control); break;
    case ControlKind::TabStrip: drawTabs(painter, control); break;
    case ControlKind::Menu: break;
    case ControlKind::Hidden: drawHidden(painter, control); break;
    case ControlKind::Other: drawOther(painter, control); break;
    }
    painter.restore();
}

} // namespace workbench
