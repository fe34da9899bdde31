#pragma once
#include <QIcon>
#include <string>

namespace workbench {

/// The icon of a button's face, a BMP file's bytes, in the colours of the present theme. Null if it is not an image.
QIcon iconOfFace(const std::string& bmp);

} // namespace workbench
