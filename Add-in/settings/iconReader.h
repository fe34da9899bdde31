#pragma once
// The directory of a Windows icon file.
#include "Add-in/platform/files.h"
#include <cstdint>
#include <string>
#include <vector>

namespace fernwick {

/// What the directory tells of one image. A width or height of 0 stands for 256 pixels.
struct IconImage {
    std::int16_t Width = 0;
    std::int16_t Height = 0;
    /// Bits per pixel.
    std::int16_t BitCount = 0;
};

struct IconImageDetails : IconImage {
    /// Colours of the palette, 0 for none or 256.
    std::int16_t ColorCount = 0;
    std::int16_t Planes = 0;
    std::int32_t ByteSize = 0;
};

/// Never raises an error: what goes wrong is a result.
class iconReader {
public:
    enum Result : std::int32_t {
        Done = 0,
        /// No icon is there to read from, or no image has that index.
        NotAvailable = 5,
        BeyondTheLast = 9,
    };

    explicit iconReader(const FileSystemObject& files) : files_(files) {}

    /// NotAvailable for a file that isn't there, can't be read or is no icon. What the file is too short for reads
    /// as 0.
    Result LoadIconFile(const std::string& FileName);
    /// 0 while nothing is loaded.
    std::int16_t ImageCount() const { return isLoaded_ ? std::int16_t(images_.size()) : std::int16_t{0}; }
    /// The path as it was given; "" while nothing is loaded.
    std::string IconFileName() const { return isLoaded_ ? fileName_ : std::string(); }
    /// `Index` from 1. `image` stays as it is where the result is not Done.
    Result GetImageInfo(std::int16_t Index, IconImage& image) const;
    Result GetImageDetails(std::int16_t Index, IconImageDetails& image) const;

private:
    Result find(std::int16_t index) const;

    const FileSystemObject& files_;
    std::vector<IconImageDetails> images_;
    bool isLoaded_ = false;
    std::string fileName_;
};

} // namespace fernwick
