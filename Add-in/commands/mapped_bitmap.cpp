#include "Add-in/commands/mapped_bitmap.h"
#include "Basic/runtime_error.h"

namespace fernwick {

namespace {

constexpr std::size_t kPixelBytes = 3;
/// Size of the file header and the picture header.
constexpr std::size_t kHeaderBytes = 54;

/// Reads a little-endian number of the headers.
std::uint32_t number(const std::string& bmp, std::size_t at, std::size_t bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes; ++i) value |= std::uint32_t(std::uint8_t(bmp[at + i])) << 8 * i;
    return value;
}

std::string pixel(Color color) {
    return {char(color >> 16 & 0xFF), char(color >> 8 & 0xFF), char(color & 0xFF)}; // blue comes first
}

struct Layout {
    std::size_t start, width, height, rowBytes;
};

/// Layout of the pixels. Sizes are checked before they are multiplied, because the file is not trusted.
Layout layoutOf(const std::string& bmp) {
    constexpr std::uint32_t kMostPixels = 4096;
    const auto refuse = [] { throw basic::RuntimeError(basic::kInvalidPicture); };
    if (bmp.size() < kHeaderBytes || !bmp.starts_with("BM")) refuse();
    if (number(bmp, 28, 2) != 8 * kPixelBytes || number(bmp, 30, 4) != 0) refuse();
    const auto width = number(bmp, 18, 4);
    const auto height = number(bmp, 22, 4);
    if (width > kMostPixels || height > kMostPixels) refuse();
    const Layout layout{number(bmp, 10, 4), width, height, (width * kPixelBytes + 3) / 4 * 4};
    if (layout.start < kHeaderBytes || layout.start + layout.rowBytes * layout.height > bmp.size()) refuse();
    return layout;
}

} // namespace

std::string mappedBitmap(std::string bmp, Color from, Color to) {
    const auto layout = layoutOf(bmp);
    const auto old = pixel(from), now = pixel(to);
    for (std::size_t row = 0; row < layout.height; ++row)
        for (std::size_t x = 0; x < layout.width; ++x) {
            const auto at = layout.start + row * layout.rowBytes + x * kPixelBytes;
            if (bmp.compare(at, kPixelBytes, old) == 0) bmp.replace(at, kPixelBytes, now);
        }
    return bmp;
}

} // namespace fernwick
