#pragma once
// Bitmaps in records, which have no file header.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host {

struct DibParts {
    std::string_view header; ///< with its colours
    std::string_view bits;
};

/// Both are empty if the header is cut off or not known.
DibParts partsOfDib(std::string_view dib);

struct DibSize {
    int width = 0, height = 0;
    bool isTopDown = false;
    std::size_t pixels() const { return std::size_t(width) * std::size_t(height); }
};
/// Nothing for other formats, and for a size that so few bits cannot fill.
std::optional<DibSize> sizeOfDib(const DibParts& dib);

/// The bitmap as a file.
std::string bmpOf(const DibParts& dib);

} // namespace host
