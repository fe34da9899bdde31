#include "Add-in/settings/iconReader.h"
#include "Basic/runtime_error.h"

namespace fernwick {

namespace {

constexpr std::size_t kHeaderSize = 6;
constexpr std::size_t kRecordSize = 16;
constexpr std::int16_t kIconType = 1;
/// A BITMAPINFOHEADER and the offset of its bit count.
constexpr std::size_t kBitmapHeaderSize = 40, kBitCountInBitmap = 14;

/// Little-endian numbers of a file; 0 beyond its end.
struct IconBytes {
    std::string bytes;

    std::uint8_t byteAt(std::size_t at) const { return at < bytes.size() ? std::uint8_t(bytes[at]) : std::uint8_t{0}; }
    std::int16_t wordAt(std::size_t at) const { return std::int16_t(byteAt(at) | byteAt(at + 1) << 8); }
    std::uint32_t longAt(std::size_t at) const {
        return std::uint32_t(std::uint16_t(wordAt(at))) | std::uint32_t(std::uint16_t(wordAt(at + 2))) << 16;
    }
};

IconImageDetails recordAt(const IconBytes& directory, std::size_t at) {
    IconImageDetails image;
    image.Width = directory.byteAt(at);
    image.Height = directory.byteAt(at + 1);
    image.ColorCount = directory.byteAt(at + 2);
    image.Planes = directory.wordAt(at + 4);
    image.BitCount = directory.wordAt(at + 6);
    image.ByteSize = std::int32_t(directory.longAt(at + 8));
    return image;
}

} // namespace

/// Reads the directory and the beginnings of images only, since any file may be chosen as an icon.
iconReader::Result iconReader::LoadIconFile(const std::string& FileName) try {
    isLoaded_ = false;
    fileName_ = FileName;
    if (!files_.FileExists(FileName)) return NotAvailable;
    const IconBytes header{files_.ReadPart(FileName, 0, kHeaderSize)};
    const auto count = header.wordAt(4);
    if (header.wordAt(2) != kIconType || count < 0) return NotAvailable;

    images_.clear();
    const IconBytes directory{files_.ReadPart(FileName, kHeaderSize, std::size_t(count) * kRecordSize)};
    for (std::size_t at = 0; at < std::size_t(count) * kRecordSize; at += kRecordSize) {
        images_.push_back(recordAt(directory, at));
        // Many icon editors leave the directory's field at 0; the image itself has the value.
        if (images_.back().BitCount == 0) images_.back().BitCount = bitCountOf(directory.longAt(at + 12));
    }
    isLoaded_ = true;
    return Done;
} catch (const basic::RuntimeError&) { return NotAvailable; }

std::int16_t iconReader::bitCountOf(std::uint32_t image) const {
    return IconBytes{files_.ReadPart(fileName_, image, kBitmapHeaderSize)}.wordAt(kBitCountInBitmap);
}

iconReader::Result iconReader::find(std::int16_t index) const {
    if (!isLoaded_ || index < 1) return NotAvailable;
    return index > ImageCount() ? BeyondTheLast : Done;
}

iconReader::Result iconReader::GetImageInfo(std::int16_t Index, IconImage& image) const {
    const auto result = find(Index);
    if (result == Done) image = images_[std::size_t(Index - 1)];
    return result;
}

iconReader::Result iconReader::GetImageDetails(std::int16_t Index, IconImageDetails& image) const {
    const auto result = find(Index);
    if (result == Done) image = images_[std::size_t(Index - 1)];
    return result;
}

} // namespace fernwick
