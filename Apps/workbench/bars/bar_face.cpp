#include "Apps/workbench/bars/bar_face.h"
#include "Apps/workbench/base/pictures.h"

namespace workbench {

namespace {

/// Lightens the dark lines of a face, which would vanish on a dark bar.
QImage withLightLines(const QImage& face) {
    constexpr int kDarkest = 60;
    auto light = face.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < light.height(); ++y)
        for (int x = 0; x < light.width(); ++x) {
            const auto colour = light.pixelColor(x, y);
            if (qGray(colour.rgb()) < kDarkest)
                light.setPixelColor(
                    x, y, QColor::fromHsv(colour.hsvHue(), colour.hsvSaturation() / 2, 255 - colour.value() / 4));
        }
    return light;
}

} // namespace

QIcon iconOfFace(const std::string& bmp, Theme theme) {
    auto face = imageOf(bmp);
    if (face.isNull()) return {};
    if (theme == Theme::Dark) face = withLightLines(face);
    QIcon icon;
    for (const int scale : {1, 2, 3}) icon.addPixmap(seeThrough(face, scale));
    return icon;
}

} // namespace workbench
