#pragma once
#include "Add-in/platform/screen.h"
#include <string>

namespace fernwick {

/// CreateMappedBitmap: returns a BMP file's bytes with pixels of the colour `from` changed to `to`. Error 481 unless it
/// is an uncompressed picture of 24 bits per pixel.
std::string mappedBitmap(std::string bmp, Color from, Color to);

} // namespace fernwick
