#include "Apps/workbench/project/new_project.h"
#include "tests/workbench/introduction_pictures/pictures.h"
#include "tests/workbench/introduction_pictures/slide.h"
#include "tests/workbench/introduction_pictures/stage.h"
#include <QMenu>
#include <QToolBar>

namespace introduction {

namespace {

/// A handheld with its screen size in pixels on its screen.
void drawHandheld(Slide& slide, const QRectF& place, const QString& size) {
    constexpr qreal kFrame = 14, kButton = 9, kButtons = 4;
    constexpr int kText = 15;
    auto& painter = slide.painter();
    slide.panel(place, QColor("#4a5561"));
    const QRectF screen(place.x() + kFrame, place.y() + kFrame, place.width() - 2 * kFrame, place.width() - 2 * kFrame);
    painter.fillRect(screen, QColor("#f4f8f4"));
    slide.write(screen, size, kText, kInk, true, Qt::AlignCenter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#c5ced8"));
    for (int i = 0; i < int(kButtons); ++i)
        painter.drawEllipse(
            QPointF(screen.left() + (i + 0.5) * screen.width() / kButtons, (screen.bottom() + place.bottom()) / 2),
            kButton, kButton);
}

QImage wholeWindow(Stage& stage) {
    Slide slide;
    slide.put(stage.window(), QRectF(0, 0, kWidth, kHeight));
    return slide.finished();
}

} // namespace

QImage welcome(Stage& stage) {
    stage.showCode();
    return wholeWindow(stage);
}

QImage forms(Stage& stage) {
    stage.showForm();
    Slide slide;
    slide.put(stage.window(), QRectF(0, 0, kWidth, kHeight));
    drawHandheld(slide, {160, 100, 130, 186}, "160 \u00D7 160\npixels");
    return slide.finished();
}

/// The upper left corner of the window with an open menu.
QImage menu(Stage& stage) {
    constexpr QSize kPart(600, 400);
    constexpr qreal kScale = qreal(kWidth) / kPart.width();
    stage.showCode();
    Slide slide;
    slide.put(stage.window(), QRectF(0, 0, kWidth, kHeight), QRect({0, 0}, kPart));
    auto& menu = stage.menu("&Fernwick");
    menu.resize(menu.sizeHint());
    slide.putFramed(menu, QRectF(QPointF(stage.below(menu)) * kScale, QSizeF(menu.size()) * kScale));
    return slide.finished();
}

QImage toolbars(Stage& stage) {
    constexpr qreal kScale = 1.8, kLeft = 22, kTop = 46, kBetween = 30;
    constexpr int kHeading = 15;
    Slide slide;
    qreal y = kTop;
    for (const auto* title : {"Fernwick", "Quinloft Utilities"}) {
        auto& bar = stage.toolBar(title);
        const QSizeF size = QSizeF(bar.sizeHint()) * kScale;
        bar.resize(bar.sizeHint());
        slide.write({kLeft, y, kWidth, 2 * kHeading}, title, kHeading, kInk, true);
        slide.putFramed(bar, QRectF({kLeft, y + 2 * kHeading}, size));
        y += size.height() + 2 * kHeading + kBetween;
    }
    return slide.finished();
}

QImage projectTemplate() {
    constexpr QSizeF kShown(360, 254);
    workbench::NewProjectDialog dialog(workbench::projectKinds(FERNWICK_SOURCE_DIR "/installation/Template"), nullptr);
    dialog.ensurePolished();
    Slide slide;
    constexpr QRectF kWindow((kWidth - kShown.width()) / 2, (kHeight - kShown.height()) / 2, kShown.width(),
                             kShown.height());
    const auto inside = slide.window(kWindow, dialog.windowTitle());
    dialog.resize(inside.size().toSize());
    slide.put(dialog, inside);
    return slide.finished();
}

QImage finished(Stage& stage) {
    stage.showCode();
    stage.compile();
    return wholeWindow(stage);
}

} // namespace introduction
