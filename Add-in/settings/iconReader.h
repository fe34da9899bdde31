#pragma once
// The directory of a Windows icon file.
#include "Add-in/platform/files.h"
#include <cstdint>
#include <string>
#include <vector>

namespace fernwick {

/// Directory entry of one image. A width or height of 0 means 256 pixels.
struct IconImage {
    std::int16_t Width = 0;
    std::int16_t Height = 0;
    /// Bits per pixel.
    std::int16_t BitCount = 0;
};

struct IconImageDetails : IconImage {
    /// Number of palette colours; 0 for none or 256.
    std::int16_t ColorCount = 0;
    std::int16_t Planes = 0;
    std::int32_t ByteSize = 0;
};

/// Reports failures as results and never raises an error.
class iconReader {
public:
    enum Result : std::int32_t {
        Done = 0,
        /// Nothing was loaded, or there is no image with that index.
        NotAvailable = 5,
        BeyondTheLast = 9,
    };

    explicit iconReader(const FileSystemObject& files) : files_(files) {}

    /// NotAvailable for a file that is missing, unreadable or not an icon. Fields beyond the end of the file are 0.
    Result LoadIconFile(const std::string& FileName);
    /// 0 unless a file is loaded.
    std::int16_t ImageCount() const { return isLoaded_ ? std::int16_t(images_.size()) : std::int16_t{0}; }
    /// The path as passed to LoadIconFile; "" unless a file is loaded.
    std::string IconFileName() const { return isLoaded_ ? fileName_ : std::string(); }
    /// `Index` counts from 1. `image` is unchanged unless the result is Done.
    Result GetImageInfo(std::int16_t Index, IconImage& image) const;
    Result GetImageDetails(std::int16_t Index, IconImageDetails& image) const;

private:
    /// Of the image that begins at this offset of the file.
    std::int16_t bitCountOf(std::uint32_t image) const;
    Result find(std::int16_t index) const;

    const FileSystemObject& files_;
    std::vector<IconImageDetails> images_;
    bool isLoaded_ = false;
    std::string fileName_;
};

} // namespace fernwick
