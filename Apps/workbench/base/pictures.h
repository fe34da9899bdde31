#pragma once
#include <QPixmap>
#include <QWidget>
#include <string>

namespace workbench {

/// Returns a form's picture: one of the style's or a drawn icon by its name, or a file by its path. Null for an unknown name or a
/// file that is not a picture.
QPixmap pictureNamed(const std::string& name, const QWidget& window);

/// Decodes a BMP file's bytes. Null if they are not a picture.
QImage imageOf(const std::string& bmp);
/// The background grey of the installation's pictures.
inline constexpr QRgb kPictureGround = qRgb(192, 192, 192);
/// Takes the ground out of a picture and shows the program's own colours as those of the present theme. The edges of a
/// shape, which are mixed with the ground, become translucent. Scales the picture to this device pixel ratio.
QPixmap seeThrough(const QImage& image, int scale = 1);
/// imageOf and seeThrough in one step.
QPixmap pictureOf(const std::string& bmp);

} // namespace workbench
