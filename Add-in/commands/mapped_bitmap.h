#pragma once
#include "Add-in/platform/screen.h"
#include <string>

namespace fernwick {

/// CreateMappedBitmap: a BMP file's bytes with each pixel of the colour `from` in the colour `to`. Error 481 for what is
/// no uncompressed picture of 24 bits a pixel.
std::string mappedBitmap(std::string bmp, Color from, Color to);

} // namespace fernwick
