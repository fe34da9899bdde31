#include "Apps/workbench/drawing/classic_edges.h"
#include "Apps/workbench/drawing/control_painters.h"
#include <algorithm>

namespace workbench {

namespace {

const QColor kTabFace("#d4d0c8"), kTabEdge("#808080");
constexpr double kTabPadding = 8;

double heightOfTab(const ControlLook& look, const QRectF& place) {
    const double usual = QFontMetricsF(look.font).height() + kTabPadding;
    return std::min(look.tabHeight > 0 ? look.tabHeight : usual, place.height());
}

/// A tab is open towards its page if it is the current one.
void drawTab(QPainter& painter, const QRectF& place, const ControlLook& look, const QString& text, bool isCurrent) {
    const auto tab = isCurrent ? place.adjusted(0, 0, 0, 1) : place.adjusted(0, 2, 0, 0);
    painter.fillRect(tab, kTabFace);
    painter.setPen(kTabEdge);
    painter.drawLine(tab.bottomLeft(), tab.topLeft());
    painter.drawLine(tab.topLeft(), tab.topRight() - QPointF(1, 0));
    painter.setPen(Qt::black);
    painter.drawLine(tab.topRight() - QPointF(1, 0), tab.bottomRight() - QPointF(1, 0));
    auto caption = look;
    caption.wrapped = false;
    caption.fore = Qt::black;
    caption.font.setBold(isCurrent && look.kind == ControlKind::TabbedBox);
    drawCaption(painter, tab, caption, int(Qt::AlignCenter) | Qt::TextShowMnemonic, text);
}

void drawPage(QPainter& painter, const QRectF& page) {
    painter.fillRect(page, kTabFace);
    drawBorder(painter, page, ControlBorder::Raised);
}

} // namespace

void drawTabs(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    const double height = heightOfTab(look, control.place);
    fillBack(painter, control);
    painter.setPen(Qt::gray);
    painter.drawRect(control.place.adjusted(0, height - 1, -1, -1));
    double left = control.place.left();
    const QFontMetricsF metrics(look.font);
    for (qsizetype i = 0; i < look.items.size(); ++i) {
        const auto text = look.items[i].isEmpty() ? control.name : look.items[i];
        const QRectF tab(left, control.place.top(), metrics.horizontalAdvance(text) + 2 * kTabPadding, height);
        drawTab(painter, tab, look, text, i == look.current);
        left = tab.right();
    }
}

/// The row with the current tab is the one beside the page.
void drawTabbedBox(QPainter& painter, const DrawnControl& control) {
    const auto& look = control.look;
    const auto tabs = int(look.items.size());
    if (tabs == 0) return drawPage(painter, control.place);
    const int perRow = std::clamp(look.perRow, 1, tabs), rows = (tabs + perRow - 1) / perRow;
    const double height = std::min(heightOfTab(look, control.place), control.place.height() / rows);
    const double width = control.place.width() / perRow;
    drawPage(painter, control.place.adjusted(0, height * rows, 0, 0));
    for (int tab = 0; tab < tabs; ++tab) {
        const int behind = (tab / perRow - look.current / perRow + rows) % rows;
        const QPointF corner(control.place.left() + tab % perRow * width,
                             control.place.top() + (rows - 1 - behind) * height);
        drawTab(painter, {corner, QSizeF(width, height)}, look, look.items[tab], tab == look.current);
    }
}

} // namespace workbench
