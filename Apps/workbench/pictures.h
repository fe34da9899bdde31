#pragma once
#include <QPixmap>
#include <QWidget>
#include <string>

namespace workbench {

/// The picture that a form asks for by name, in the window's style, or by the path of its file; an empty one for a name
/// that is not known and for a file that is no picture.
QPixmap pictureNamed(const std::string& name, const QWidget& window);

/// A BMP file's bytes, with the grey that stands for nothing in the installation's pictures see-through; an empty one for
/// what is no picture. `scale` is a screen's device pixel ratio.
QPixmap pictureOf(const std::string& bmp, int scale = 1);

} // namespace workbench
