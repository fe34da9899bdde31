// Records of the 32-bit format that draw.
#include "Basic/code_page.h"
#include "Host/metafiles/enhanced_reader.h"
#include "Host/metafiles/utf16_text.h"

namespace host {

namespace {

using Points = MetafileCanvas::Points;

constexpr std::size_t kBounds = 16;

DrawnPoint xThenY(Fields& in) {
    const double x = in.i32();
    return {x, double(in.i32())};
}

LogicalBox boxOf(Fields& in) {
    const auto first = xThenY(in), last = xThenY(in);
    return {first.x, first.y, last.x, last.y};
}

Points pointsOf(Fields& in, std::size_t count, bool isShort) {
    Points points;
    if (!in.hasRoomFor(count, isShort ? 4 : 8)) return points;
    points.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double x = isShort ? in.i16() : in.i32();
        points.push_back({x, double(isShort ? in.i16() : in.i32())});
    }
    return points;
}

std::vector<Points> severalOf(Fields& in, bool isShort) {
    const std::size_t count = in.u32();
    in.skip(4); // all points
    std::vector<Points> several;
    if (!in.hasRoomFor(count, 4)) return several;
    std::vector<std::size_t> counts;
    for (std::size_t i = 0; i < count; ++i) counts.push_back(in.u32());
    for (const auto points : counts) several.push_back(pointsOf(in, points, isShort));
    return several;
}

/// A part of the record that another field names.
std::string_view partOf(std::string_view record, std::size_t at, std::size_t size) {
    return at <= record.size() && size <= record.size() - at ? record.substr(at, size) : std::string_view();
}

} // namespace

void EnhancedReader::readShape(EnhancedRecord type, Fields in) {
    using enum EnhancedRecord;
    switch (type) {
    case kLineTo: return canvas_.lineTo(xThenY(in));
    case kRectangle: return canvas_.rectangle(boxOf(in));
    case kEllipse: return canvas_.ellipse(boxOf(in));
    case kRoundRect: {
        const auto box = boxOf(in);
        const auto corner = xThenY(in);
        return canvas_.roundRectangle(box, corner.x, corner.y);
    }
    case kArc:
    case kArcTo:
    case kChord:
    case kPie: {
        const auto box = boxOf(in);
        const auto from = xThenY(in), to = xThenY(in);
        if (type == kArcTo) return canvas_.arcTo(box, from, to);
        return canvas_.arc(box, from, to, type == kArc ? ArcKind::Open : type == kPie ? ArcKind::Pie : ArcKind::Chord);
    }
    case kSetPixel: {
        const auto at = xThenY(in);
        return canvas_.fill(boxAt(at, {1, 1}), {DrawnBrush::Style::Solid, colourOf(in.u32()), 0});
    }
    default: break;
    }
}

void EnhancedReader::readPoints(EnhancedRecord type, Fields in) {
    using enum EnhancedRecord;
    const bool isShort = type >= kPolyBezier16 && type <= kPolyPolygon16;
    if (!isShort && (type < kPolyBezier || type > kPolyPolygon)) return;
    in.skip(kBounds);
    const auto kind = isShort ? EnhancedRecord(unsigned(type) - unsigned(kPolyBezier16) + unsigned(kPolyBezier)) : type;
    if (kind == kPolyPolygon) return canvas_.polygons(severalOf(in, isShort));
    if (kind == kPolyPolyline) return canvas_.openLines(severalOf(in, isShort));
    const auto points = pointsOf(in, in.u32(), isShort);
    switch (kind) {
    case kPolygon: return canvas_.polygons({points});
    case kPolyline: return canvas_.lines(points);
    case kPolylineTo: return canvas_.lines(points, true);
    case kPolyBezier: return canvas_.beziers(points, false);
    case kPolyBezierTo: return canvas_.beziers(points, true);
    default: break;
    }
}

void EnhancedReader::readPath(EnhancedRecord type) {
    using enum EnhancedRecord;
    using Use = MetafileCanvas::PathUse;
    switch (type) {
    case kBeginPath:
    case kAbortPath: canvas_.beginPath(); break;
    case kCloseFigure: canvas_.closeFigure(); break;
    case kFillPath: canvas_.drawPath(Use::Fill); break;
    case kStrokePath: canvas_.drawPath(Use::Stroke); break;
    case kStrokeAndFillPath: canvas_.drawPath(Use::Both); break;
    default: break;
    }
    if (type == kEndPath || type == kAbortPath) canvas_.endPath();
}

void EnhancedReader::readText(EnhancedRecord type, std::string_view record) {
    using enum EnhancedRecord;
    if (type != kExtTextOutA && type != kExtTextOutW) return;
    constexpr std::size_t kTextAt = 36; // after type, size, bounds, mode and scales
    Fields in(record);
    in.skip(kTextAt);
    const auto at = xThenY(in);
    const std::size_t count = in.u32(), offset = in.u32();
    if (!in.isWhole() || count > record.size()) return;
    if (type == kExtTextOutW) return canvas_.text(at, textOfUtf16(partOf(record, offset, count * 2)));
    canvas_.text(at, basic::CodePage::windows1252().decode(partOf(record, offset, count)));
}

/// The two families of records have their fields in different orders.
void EnhancedReader::readBitmap(EnhancedRecord type, std::string_view record) {
    using enum EnhancedRecord;
    const bool isTransfer = type == kBitBlt || type == kStretchBlt;
    if (!isTransfer && type != kStretchDibits && type != kSetDibitsToDevice) return;
    Fields in(record);
    in.skip(8 + kBounds);
    const auto to = xThenY(in);
    DrawnPoint size, part, partSize;
    std::uint32_t operation = 0;
    if (isTransfer) {
        size = xThenY(in);
        operation = in.u32();
        part = xThenY(in);
        in.skip(32); // transformation, colour of the ground, use of colours
    } else {
        part = xThenY(in);
        partSize = xThenY(in);
    }
    const std::size_t headerAt = in.u32(), headerSize = in.u32(), bitsAt = in.u32(), bitsSize = in.u32();
    if (type == kBitBlt) partSize = size;
    if (type == kStretchBlt) partSize = xThenY(in);
    if (type == kSetDibitsToDevice) size = partSize;
    if (type == kStretchDibits) {
        in.skip(8); // use of colours, operation
        size = xThenY(in);
    }
    if (!in.isWhole()) return;
    const auto header = partOf(record, headerAt, headerSize);
    if (header.empty()) return fillBy(canvas_, operation, boxAt(to, size));
    canvas_.bitmap(boxAt(to, size), boxAt(part, partSize), {header, partOf(record, bitsAt, bitsSize)}, !isTransfer);
}

} // namespace host
