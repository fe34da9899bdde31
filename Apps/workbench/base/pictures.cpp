#include "Apps/workbench/base/pictures.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/icon_colours.h"
#include "Apps/workbench/base/text.h"
#include <QStyle>
#include <QVector3D>
#include <algorithm>
#include <array>

namespace workbench {

namespace {

struct Picture {
    std::string_view name;
    QStyle::StandardPixmap drawn;
};

constexpr std::array kPictures{
    Picture{"finished", QStyle::SP_DialogApplyButton},  Picture{"failed", QStyle::SP_MessageBoxCritical},
    Picture{"question", QStyle::SP_MessageBoxQuestion}, Picture{"devices", QStyle::SP_ComputerIcon},
    Picture{"projects", QStyle::SP_DirOpenIcon},
};

using Colour = QVector3D;

Colour partsOf(QRgb colour) { return {float(qRed(colour)), float(qGreen(colour)), float(qBlue(colour))}; }

/// The colour of the theme in place of the program's own colour that was mixed with the ground. Leaves any other colour.
QRgb withoutGround(QRgb pixel, Theme theme) {
    constexpr float kTolerance = 48;
    if ((pixel & RGB_MASK) == (kPictureGround & RGB_MASK)) return 0;
    const auto ground = partsOf(kPictureGround), mixed = partsOf(pixel) - ground;
    float nearest = kTolerance;
    QRgb shown = pixel | ~RGB_MASK;
    for (const auto& colour : kIconColours) {
        const auto whole = partsOf(colour.in(Theme::Light).rgb()) - ground;
        const auto part = Colour::dotProduct(mixed, whole) / whole.lengthSquared();
        const auto distance = (mixed - whole * part).length();
        if (part <= 0 || distance >= nearest) continue;
        nearest = distance;
        auto here = colour.in(theme);
        here.setAlphaF(std::min(part, 1.0F));
        shown = here.rgba();
    }
    return shown;
}

} // namespace

QPixmap pictureNamed(const std::string& name, const QWidget& window) {
    const int size = window.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &window);
    for (const auto& picture : kPictures)
        if (picture.name == name) return window.style()->standardIcon(picture.drawn, nullptr, &window).pixmap(size);
    const auto own = drawnIcon(name);
    return own.isNull() ? QPixmap(qt(name)) : own.pixmap(size);
}

QImage imageOf(const std::string& bmp) { return QImage::fromData(QByteArray::fromStdString(bmp), "BMP"); }

QPixmap seeThrough(const QImage& image, int scale) {
    auto shown = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) shown.setPixel(x, y, withoutGround(shown.pixel(x, y), currentTheme()));
    auto picture =
        QPixmap::fromImage(shown.scaled(shown.size() * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    picture.setDevicePixelRatio(scale);
    return picture;
}

QPixmap pictureOf(const std::string& bmp) {
    const auto image = imageOf(bmp);
    return image.isNull() ? QPixmap() : seeThrough(image);
}

} // namespace workbench
