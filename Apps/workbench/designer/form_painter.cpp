#include "Apps/workbench/designer/form_painter.h"
#include "Apps/workbench/drawing/classic_edges.h"
#include "Apps/workbench/drawing/control_drawing.h"
#include "Apps/workbench/properties/form_fonts.h"
#include <QFontMetricsF>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kDarkPaper = 128;
constexpr double kTitlePoints = 8.25, kMenuGap = 7, kTitleButton = 16, kTitleButtonHeight = 14;
const QColor kFormFace("#d4d0c8"), kTitleColour("#0a246a");

QFont titleFont(bool bold) {
    auto font = formFont("Tahoma", kTitlePoints);
    font.setBold(bold);
    return font;
}

/// Draws a dot at each step, from the inner corner.
void drawGridDots(QPainter& painter, const QRectF& area, const QColor& paper, int step) {
    QPixmap tile(QSize(step, step));
    tile.fill(Qt::transparent);
    QPainter dot(&tile);
    dot.fillRect(0, 0, 1, 1, paper.lightness() < kDarkPaper ? Qt::lightGray : Qt::black);
    dot.end();
    painter.drawTiledPixmap(area, tile);
}

enum class TitleSign { Close, Largest, Smallest };

void drawTitleButton(QPainter& painter, const QRectF& place, TitleSign sign) {
    const auto inner = drawRaised(painter, place, kFormFace).adjusted(2, 1, -2, -1);
    painter.setPen(QPen(Qt::black, 1.4));
    painter.setBrush(Qt::NoBrush);
    if (sign == TitleSign::Close) {
        painter.drawLine(inner.topLeft() + QPointF(1, 1), inner.bottomRight() - QPointF(1, 1));
        painter.drawLine(inner.topRight() + QPointF(-1, 1), inner.bottomLeft() + QPointF(1, -1));
    } else if (sign == TitleSign::Largest) {
        painter.drawRect(inner.adjusted(0.5, 0.5, -1, -1));
        painter.drawLine(inner.topLeft() + QPointF(1, 1), inner.topRight() + QPointF(-1, 1));
    } else {
        painter.drawLine(inner.bottomLeft() + QPointF(1, -1), inner.bottomRight() - QPointF(2, 1));
    }
}

/// Returns the left end of the buttons.
double drawTitleButtons(QPainter& painter, const FormPicture& form, const QRectF& bar) {
    double right = bar.right() - 2;
    const auto add = [&](bool there, TitleSign sign, double gap) {
        if (!there) return;
        const double top = bar.top() + (bar.height() - kTitleButtonHeight) / 2;
        drawTitleButton(painter, {right - kTitleButton, top, kTitleButton, kTitleButtonHeight}, sign);
        right -= kTitleButton + gap;
    };
    add(form.controlBox, TitleSign::Close, 2);
    add(form.maxButton, TitleSign::Largest, 0);
    add(form.minButton, TitleSign::Smallest, 0);
    return right;
}

void drawTitle(QPainter& painter, const FormPicture& form, const QSizeF& whole) {
    if (form.frame.top() <= 0) return; // a form without a frame has no title
    drawRaised(painter, QRectF({}, whole), kFormFace);
    const QRectF bar(form.frame.left(), form.frame.left(), form.inner.width(),
                     form.frame.top() - form.frame.left() - 1);
    painter.fillRect(bar, kTitleColour);
    const double right = drawTitleButtons(painter, form, bar);
    painter.setFont(titleFont(!form.smallTitle));
    painter.setPen(Qt::white);
    painter.drawText(QRectF(bar.topLeft() + QPointF(4, 0), QPointF(right, bar.bottom())),
                     int(Qt::AlignLeft | Qt::AlignVCenter), form.caption);
}

void drawMenuBar(QPainter& painter, const FormPicture& form) {
    if (!form.hasMenuBar()) return;
    painter.fillRect(QRectF(form.frame.left(), form.frame.top(), form.inner.width(), kMenuBarHeight), kFormFace);
    painter.setFont(titleFont(false));
    for (const auto& [number, place] : menuPlaces(form)) {
        painter.setPen(form.menus[number].enabled ? Qt::black : Qt::gray);
        painter.drawText(place, int(Qt::AlignCenter) | Qt::TextShowMnemonic, form.menus[number].caption);
    }
}

void drawControls(QPainter& painter, const FormPicture& form) {
    const auto shown = painter.clipBoundingRect();
    for (const auto& control : form.controls)
        if (control.clip.intersects(shown)) drawControl(painter, control);
}

} // namespace

QSizeF wholeSize(const FormPicture& form) {
    const auto border = form.border();
    return {form.inner.width() + border.left() + border.right(), form.inner.height() + border.top() + border.bottom()};
}

std::vector<std::pair<std::size_t, QRectF>> menuPlaces(const FormPicture& form) {
    std::vector<std::pair<std::size_t, QRectF>> places;
    const QFontMetricsF metrics(titleFont(false));
    double left = form.frame.left();
    for (std::size_t i = 0; i < form.menus.size(); ++i) {
        if (!form.menus[i].visible) continue;
        const double width = metrics.size(Qt::TextShowMnemonic, form.menus[i].caption).width() + 2 * kMenuGap;
        places.emplace_back(i, QRectF(left, form.frame.top(), width, kMenuBarHeight));
        left += width;
    }
    return places;
}

void paintForm(QPainter& painter, const FormPicture& form, const DesignGrid& grid) {
    const auto border = form.border();
    drawTitle(painter, form, wholeSize(form));
    painter.save();
    painter.setClipRect(QRectF({}, wholeSize(form)), Qt::IntersectClip);
    drawMenuBar(painter, form);
    const QRectF inner({border.left(), border.top()}, form.inner);
    painter.fillRect(inner, form.back);
    painter.setClipRect(inner, Qt::IntersectClip);
    if (!form.picture.isNull()) painter.drawPixmap(inner.topLeft(), form.picture);
    if (grid.isVisible) drawGridDots(painter, inner, form.back, grid.pixels);
    painter.translate(inner.topLeft());
    drawControls(painter, form);
    painter.restore();
}

void paintInner(QPainter& painter, const FormPicture& form) {
    painter.setClipRect(QRectF({}, form.inner), Qt::IntersectClip);
    if (!form.picture.isNull()) painter.drawPixmap(QPointF(), form.picture);
    drawControls(painter, form);
}

} // namespace workbench
