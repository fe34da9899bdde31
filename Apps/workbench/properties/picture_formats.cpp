#include "Apps/workbench/properties/picture_formats.h"
#include "Apps/workbench/properties/metafile_painter.h"
#include <string_view>

namespace workbench {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kLargestPicture = 16 * 1024 * 1024;

enum class PictureFormat { None, Bitmap, Icon, Cursor, Metafile, Unknown };

bool isEnhancedMetafile(std::string_view image) {
    constexpr std::size_t kMarkAt = 40;
    return image.starts_with("\1\0\0\0"sv) && image.size() > kMarkAt && image.substr(kMarkAt).starts_with(" EMF"sv);
}

PictureFormat formatOf(std::string_view image) {
    if (image.empty()) return PictureFormat::None;
    for (const auto mark : {"BM"sv, "GIF8"sv, "\xff\xd8\xff"sv})
        if (image.starts_with(mark)) return PictureFormat::Bitmap;
    if (image.starts_with("\0\0\1\0"sv)) return PictureFormat::Icon;
    if (image.starts_with("\0\0\2\0"sv)) return PictureFormat::Cursor;
    const bool isMetafile =
        image.starts_with("\xd7\xcd\xc6\x9a"sv) || image.starts_with("\1\0\x09\0"sv) || isEnhancedMetafile(image);
    return isMetafile ? PictureFormat::Metafile : PictureFormat::Unknown;
}

bool isIconOnly(const QString& property) { return property == "Icon"; }

bool isPointer(const QString& property) { return property == "MouseIcon" || property == "DragIcon"; }

} // namespace

QString shownPicture(const std::string& image) {
    switch (formatOf(image)) {
    case PictureFormat::None: return "(None)";
    case PictureFormat::Icon:
    case PictureFormat::Cursor: return "(Icon)";
    case PictureFormat::Metafile: return "(Metafile)";
    default: return "(Bitmap)";
    }
}

QString refusalOfPicture(const QString& property, const QString& fileName, const std::string& image) {
    const auto format = formatOf(image);
    if (format == PictureFormat::Unknown || format == PictureFormat::None)
        return fileName +
               ": a form cannot store a picture of this format. Choose a bitmap (.bmp, .dib), a GIF, a JPEG, "
               "a metafile (.wmf, .emf), an icon (.ico) or a cursor (.cur).";
    if (isIconOnly(property) && format != PictureFormat::Icon)
        return fileName + ": the icon of a form must be an icon file (.ico).";
    if (isPointer(property) && format != PictureFormat::Icon && format != PictureFormat::Cursor)
        return fileName + ": a pointer must be an icon (.ico) or a cursor (.cur).";
    return {};
}

QPixmap drawnPicture(const std::string& image) {
    QPixmap picture;
    if (image.size() > kLargestPicture) return picture;
    if (formatOf(image) == PictureFormat::Metafile) return QPixmap::fromImage(paintedMetafile(image));
    picture.loadFromData(reinterpret_cast<const uchar*>(image.data()), uint(image.size()));
    return picture;
}

QPixmap thumbnail(const std::string& image, const QSize& size) {
    const auto picture = drawnPicture(image);
    const bool isLarger = picture.width() > size.width() || picture.height() > size.height();
    return isLarger ? picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
}

QString pictureFilter(const QString& property) {
    const QString all = ";;All files (*)";
    if (isIconOnly(property)) return "Icons (*.ico)" + all;
    if (isPointer(property)) return "Icons and cursors (*.ico *.cur)" + all;
    return "Pictures (*.bmp *.dib *.gif *.jpg *.jpeg *.wmf *.emf *.ico *.cur)" + all;
}

} // namespace workbench
