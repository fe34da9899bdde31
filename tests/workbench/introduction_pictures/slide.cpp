#include "tests/workbench/introduction_pictures/slide.h"

namespace introduction {

namespace {
constexpr int kRound = 6, kTitleHeight = 26, kTitlePixels = 13, kMargin = 10, kClose = 10;
} // namespace

Slide::Slide() : image_(kWidth * kSharpness, kHeight * kSharpness, QImage::Format_RGB32) {
    image_.setDevicePixelRatio(kSharpness);
    image_.fill(kDesk);
    painter_.begin(&image_);
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
}

void Slide::put(QWidget& widget, const QRectF& place, const QRect& part) {
    const auto grabbed = widget.grab(part.isNull() ? widget.rect() : part).toImage();
    const auto pixels = (painter_.transform().mapRect(place).size() * kSharpness).toSize();
    // scaled separately, as QPainter uses too few pixels when it shrinks a picture
    auto scaled = grabbed.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(1);
    painter_.drawImage(place, scaled, QRectF(scaled.rect()));
}

void Slide::putFramed(QWidget& widget, const QRectF& place) {
    put(widget, place);
    painter_.setPen(kLine);
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(place);
}

void Slide::panel(const QRectF& place, const QColor& fill) {
    painter_.setPen(kLine);
    painter_.setBrush(fill);
    painter_.drawRoundedRect(place, kRound, kRound);
}

void Slide::write(const QRectF& place, const QString& text, int pixels, const QColor& colour, bool bold,
                  int alignment) {
    QFont font;
    font.setPixelSize(pixels);
    font.setBold(bold);
    painter_.setFont(font);
    painter_.setPen(colour);
    painter_.drawText(place, alignment, text);
}

QRectF Slide::window(const QRectF& place, const QString& title) {
    panel(place);
    const QRectF bar(place.topLeft(), QSizeF(place.width(), kTitleHeight));
    write(bar.adjusted(kMargin, 0, -kMargin, 0), title, kTitlePixels, kInk, true);
    painter_.setPen(QPen(kFaint, 1.5));
    const QRectF close(bar.right() - kMargin - kClose, bar.center().y() - kClose / 2.0, kClose, kClose);
    painter_.drawLine(close.topLeft(), close.bottomRight());
    painter_.drawLine(close.topRight(), close.bottomLeft());
    painter_.setPen(kLine);
    painter_.drawLine(bar.bottomLeft(), bar.bottomRight());
    return place.adjusted(1, kTitleHeight + 1, -1, -1);
}

QImage Slide::finished() {
    painter_.end();
    return image_;
}

} // namespace introduction
