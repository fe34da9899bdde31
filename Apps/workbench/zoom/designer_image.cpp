#include "Apps/workbench/zoom/designer_image.h"
#include "Apps/workbench/designer/form_canvas.h"
#include <QPainter>
#include <QPalette>

namespace workbench {

DesignerImage::DesignerImage(FormCanvas& canvas) : canvas_(canvas) {
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    connect(&soon_, &QTimer::timeout, this, [this] {
        if (ratio_ > 0) draw();
        drawn.raise();
    });
    watch_ = canvas.contentChanged.connect([this] { soon_.start(); });
}

void DesignerImage::useRatio(double devicePixelRatio) {
    if (devicePixelRatio == ratio_) return;
    ratio_ = devicePixelRatio;
    draw();
}

void DesignerImage::draw() {
    const auto size = (QSizeF(canvas_.size()) * ratio_).toSize();
    if (pixmap_.size() != size) pixmap_ = QPixmap(size);
    if (pixmap_.isNull()) return;
    pixmap_.setDevicePixelRatio(ratio_);
    pixmap_.fill(canvas_.palette().color(QPalette::Dark)); // as around the form in its window
    QPainter painter(&pixmap_);
    canvas_.draw(painter);
    ++revision_;
}

} // namespace workbench
