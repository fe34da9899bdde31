#include "Add-in/settings/iconReader.h"
#include "Basic/runtime_error.h"

namespace fernwick {

namespace {

constexpr std::size_t kHeaderSize = 6;
constexpr std::size_t kRecordSize = 16;
constexpr std::int16_t kIconType = 1;
/// Offset of the bit count in a BITMAPINFOHEADER.
constexpr std::size_t kBitCountInBitmap = 14;

/// Little-endian numbers of a file; 0 beyond its end.
struct IconBytes {
    std::string bytes;

    std::uint8_t byteAt(std::size_t at) const { return at < bytes.size() ? std::uint8_t(bytes[at]) : std::uint8_t{0}; }
    std::int16_t wordAt(std::size_t at) const { return std::int16_t(byteAt(at) | byteAt(at + 1) << 8); }
    std::uint32_t longAt(std::size_t at) const {
        return std::uint32_t(std::uint16_t(wordAt(at))) | std::uint32_t(std::uint16_t(wordAt(at + 2))) << 16;
    }
};

IconImageDetails recordAt(const IconBytes& file, std::size_t at) {
    IconImageDetails image;
    image.Width = file.byteAt(at);
    image.Height = file.byteAt(at + 1);
    image.ColorCount = file.byteAt(at + 2);
    image.Planes = file.wordAt(at + 4);
    image.BitCount = file.wordAt(at + 6);
    image.ByteSize = std::int32_t(file.longAt(at + 8));
    // Many icon editors leave the directory's field at 0; the image itself has the value.
    if (image.BitCount == 0) image.BitCount = file.wordAt(file.longAt(at + 12) + kBitCountInBitmap);
    return image;
}

} // namespace

iconReader::Result iconReader::LoadIconFile(const std::string& FileName) try {
    isLoaded_ = false;
    fileName_ = FileName;
    if (!files_.FileExists(FileName)) return NotAvailable;
    const IconBytes file{files_.ReadBytes(FileName)};
    const auto count = file.wordAt(4);
    if (file.wordAt(2) != kIconType || count < 0) return NotAvailable;

    images_.clear();
    for (std::size_t i = 0; i < std::size_t(count); ++i)
        images_.push_back(recordAt(file, kHeaderSize + i * kRecordSize));
    isLoaded_ = true;
    return Done;
} catch (const basic::RuntimeError&) { return NotAvailable; }

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
