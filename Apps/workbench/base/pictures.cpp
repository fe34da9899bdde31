#include "Apps/workbench/base/pictures.h"
#include "Apps/workbench/base/text.h"
#include <QBitmap>
#include <QStyle>
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

/// The background grey of the installation's pictures.
const QColor kPictureGround(192, 192, 192);

} // namespace

QPixmap pictureNamed(const std::string& name, const QWidget& window) {
    for (const auto& picture : kPictures)
        if (picture.name == name) {
            const int size = window.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &window);
            return window.style()->standardIcon(picture.drawn, nullptr, &window).pixmap(size);
        }
    return QPixmap(qt(name));
}

QImage imageOf(const std::string& bmp) { return QImage::fromData(QByteArray::fromStdString(bmp), "BMP"); }

QPixmap seeThrough(const QImage& image, int scale) {
    auto picture = QPixmap::fromImage(image.scaled(image.size() * scale));
    picture.setMask(picture.createMaskFromColor(kPictureGround.rgb()));
    picture.setDevicePixelRatio(scale);
    return picture;
}

QPixmap pictureOf(const std::string& bmp) {
    const auto image = imageOf(bmp);
    return image.isNull() ? QPixmap() : seeThrough(image);
}

} // namespace workbench
