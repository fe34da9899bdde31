#pragma once
#include <QPixmap>
#include <QWidget>
#include <string>

namespace workbench {

/// The picture that a form asks for by name, in the window's style, or by the path of its file; an empty one for a name
/// that is not known and for a file that is no picture.
QPixmap pictureNamed(const std::string& name, const QWidget& window);

/// Of a BMP file's bytes; an empty one for what is no picture.
QImage imageOf(const std::string& bmp);
/// With the grey that stands for nothing in the installation's pictures see-through, and each pixel as whole pixels of a
/// screen with this device pixel ratio.
QPixmap seeThrough(const QImage& image, int scale = 1);
/// Both at once.
QPixmap pictureOf(const std::string& bmp);

} // namespace workbench
