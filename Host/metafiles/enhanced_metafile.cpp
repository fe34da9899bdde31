// The header and the records of the 32-bit format.
#include "Host/metafiles/enhanced_reader.h"
#include "Host/metafiles/readers.h"
#include <algorithm>
#include <cmath>

namespace host {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMarkAt = 40, kSmallestHeader = 88, kEnhancedRecordHeader = 8;
constexpr double kPixelsPerMillimetre = 96 / 25.4;

} // namespace

/// The frame has hundredths of a millimetre, and the records have pixels of the device on which the file was made.
bool EnhancedReader::readHeader() {
    Fields in(rest_);
    in.skip(24); // type, size, bounds
    const double left = in.i32(), top = in.i32(), right = in.i32(), bottom = in.i32();
    in.skip(32); // mark, version, size, counts, description, palette
    const double across = in.i32(), down = in.i32(), millimetresAcross = in.i32(), millimetresDown = in.i32();
    if (!in.isWhole() || right <= left || bottom <= top) return false;
    if (across <= 0 || down <= 0 || millimetresAcross <= 0 || millimetresDown <= 0) return false;
    width_ = std::clamp((right - left) / 100 * kPixelsPerMillimetre, 1.0, kLargestMetafile);
    height_ = std::clamp((bottom - top) / 100 * kPixelsPerMillimetre, 1.0, kLargestMetafile);
    pixelsPerMillimetre_ = {across / millimetresAcross, down / millimetresDown};
    const double xScale = width_ / ((right - left) / 100 * pixelsPerMillimetre_.x),
                 yScale = height_ / ((bottom - top) / 100 * pixelsPerMillimetre_.y);
    canvas_.context.mapping.device = {xScale,
                                      0,
                                      0,
                                      yScale,
                                      -left / 100 * pixelsPerMillimetre_.x * xScale,
                                      -top / 100 * pixelsPerMillimetre_.y * yScale};
    return true;
}

std::optional<Metafile> EnhancedReader::read() {
    if (!readHeader()) return {};
    while (rest_.size() >= kEnhancedRecordHeader && !canvas_.isFull()) {
        Fields in(rest_);
        const EnhancedRecord type{in.u32()};
        const std::size_t size = in.u32();
        if (size < kEnhancedRecordHeader || size > rest_.size() || type == EnhancedRecord::kEndOfFile) break;
        readRecord(type, rest_.substr(0, size));
        rest_.remove_prefix(size);
    }
    return Metafile{width_, height_, canvas_.take()};
}

/// The record's type alone determines which of these knows it.
void EnhancedReader::readRecord(EnhancedRecord type, std::string_view record) {
    Fields in(record);
    in.skip(kEnhancedRecordHeader);
    readContext(type, in);
    readMapping(type, in);
    readObject(type, in);
    readShape(type, in);
    readPoints(type, in);
    readPath(type);
    readText(type, record);
    readBitmap(type, record);
}

bool isEnhancedMetafile(std::string_view bytes) {
    return bytes.starts_with("\1\0\0\0"sv) && bytes.size() >= kSmallestHeader &&
           bytes.substr(kMarkAt).starts_with(" EMF"sv);
}

std::optional<Metafile> readEnhancedMetafile(std::string_view bytes) { return EnhancedReader(bytes).read(); }

} // namespace host
