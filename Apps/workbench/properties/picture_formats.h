#pragma once
// The formats of the pictures in forms.
#include <QPixmap>
#include <QSize>
#include <QString>
#include <string>

namespace workbench {

/// "(None)" for no picture, "(Icon)" for icons and cursors, "(Metafile)", "(Bitmap)" for all others.
QString shownPicture(const std::string& image);

/// Returns why a property cannot have this file as its picture; "" if it can.
QString refusalOfPicture(const QString& property, const QString& fileName, const std::string& image);

/// Null for no picture, a very large one, and formats that this system cannot draw.
QPixmap drawnPicture(const std::string& image);
/// Not larger than a size.
QPixmap thumbnail(const std::string& image, const QSize& size);

/// The filter of a file dialog.
QString pictureFilter(const QString& property);

} // namespace workbench
