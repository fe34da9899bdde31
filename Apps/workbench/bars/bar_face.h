#pragma once
#include "Apps/workbench/base/theme.h"
#include <QIcon>
#include <string>

namespace workbench {

/// The icon of a button's face, a BMP file's bytes. Null if it is not an image.
QIcon iconOfFace(const std::string& bmp, Theme theme);

} // namespace workbench
