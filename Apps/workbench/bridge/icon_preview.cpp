#include "Apps/workbench/bridge/icon_preview.h"
#include <QFileInfo>
#include <QImageReader>

namespace workbench {

namespace {

constexpr int kLargest = 48;

/// The images of an icon file are read one after the other; a broken one ends it.
QImage largestImage(const QString& path) {
    QImageReader reader(path, "ico");
    reader.setDecideFormatFromContent(false);
    QImage largest;
    do {
        const auto image = reader.read();
        if (image.isNull()) break;
        if (image.width() > largest.width()) largest = image;
    } while (reader.jumpToNextImage());
    return largest;
}

} // namespace

QPixmap iconPreview(const QString& path, const QWidget& widget) {
    if (!QFileInfo(path).isFile()) return {};
    const auto image = largestImage(path);
    if (image.isNull()) return {};
    const auto ratio = widget.devicePixelRatio();
    const int limit = int(kLargest * ratio);
    const bool isLarge = image.width() > limit || image.height() > limit;
    auto shown =
        QPixmap::fromImage(isLarge ? image.scaled(limit, limit, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image);
    shown.setDevicePixelRatio(ratio);
    return shown;
}

} // namespace workbench
