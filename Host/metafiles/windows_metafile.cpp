// Records of the 16-bit format. Most store their parameters from the last to the first.
#include "Basic/code_page.h"
#include "Host/metafiles/dib.h"
#include "Host/metafiles/readers.h"
#include "Host/metafiles/record_objects.h"
#include <algorithm>
#include <cmath>
#include <set>

namespace host {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPlaceable = "\xd7\xcd\xc6\x9a"sv;
constexpr std::size_t kPlaceableSize = 22, kHeaderSize = 18, kWindowsRecordHeader = 6;
constexpr double kPixelsPerInch = 96;

enum class Function : std::uint16_t {
    kSaveDC = 0x001E,
    kCreatePalette = 0x00F7,
    kSetPolyFillMode = 0x0106,
    kRestoreDC = 0x0127,
    kSelectObject = 0x012D,
    kSetTextAlign = 0x012E,
    kCreateDibPatternBrush = 0x0142,
    kDeleteObject = 0x01F0,
    kCreatePatternBrush = 0x01F9,
    kSetTextColor = 0x0209,
    kSetWindowOrg = 0x020B,
    kSetWindowExt = 0x020C,
    kOffsetWindowOrg = 0x020F,
    kLineTo = 0x0213,
    kMoveTo = 0x0214,
    kCreatePen = 0x02FA,
    kCreateFont = 0x02FB,
    kCreateBrush = 0x02FC,
    kPolygon = 0x0324,
    kPolyline = 0x0325,
    kScaleWindowExt = 0x0410,
    kEllipse = 0x0418,
    kRectangle = 0x041B,
    kSetPixel = 0x041F,
    kTextOut = 0x0521,
    kPolyPolygon = 0x0538,
    kRoundRect = 0x061C,
    kPatBlt = 0x061D,
    kCreateRegion = 0x06FF,
    kArc = 0x0817,
    kPie = 0x081A,
    kChord = 0x0830,
    kDibBitBlt = 0x0940,
    kExtTextOut = 0x0A32,
    kDibStretchBlt = 0x0B41,
    kSetDibToDev = 0x0D33,
    kStretchDib = 0x0F43,
};

DrawnPoint yThenX(Fields& in) {
    const double y = in.i16();
    return {double(in.i16()), y};
}

LogicalBox bottomToLeft(Fields& in) {
    const auto last = yThenX(in), first = yThenX(in);
    return {first.x, first.y, last.x, last.y};
}

MetafileCanvas::Points pointsOf(Fields& in, std::size_t count) {
    MetafileCanvas::Points points;
    if (!in.hasRoomFor(count, 4)) return points;
    points.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double x = in.i16();
        points.push_back({x, double(in.i16())});
    }
    return points;
}

LogicalFont fontOf(Fields& in) {
    constexpr int kBold = 600;
    LogicalFont font;
    font.height = in.i16();
    in.skip(2);
    font.angle = in.i16() / 10.0;
    in.skip(2);
    font.isBold = in.i16() >= kBold;
    font.isItalic = in.u8() != 0;
    font.isUnderlined = in.u8() != 0;
    in.skip(6); // struck out, character set, precisions, quality, pitch
    const auto face = in.rest().substr(0, 32);
    font.face = basic::CodePage::windows1252().decode(face.substr(0, face.find('\0')));
    return font;
}

class WindowsReader {
public:
    explicit WindowsReader(std::string_view bytes) : rest_(bytes) {}

    std::optional<Metafile> read();

private:
    void readPlaceable();
    void readRecord(Function function, Fields in);
    void readContext(Function function, Fields in);
    void readObject(Function function, Fields in);
    void readShape(Function function, Fields in);
    void readText(Function function, Fields in);
    void readBitmap(Function function, Fields in);
    void setWindow(DrawnPoint extent);
    void create(MetafileObject object);
    void remove(std::size_t number);

    std::string_view rest_;
    MetafileCanvas canvas_;
    double width_ = 0, height_ = 0;
    std::vector<MetafileObject> objects_;
    std::set<std::size_t> free_;
};

void WindowsReader::readPlaceable() {
    Fields in(rest_);
    in.skip(6);
    const double left = in.i16(), top = in.i16(), right = in.i16(), bottom = in.i16();
    const double unitsPerInch = std::max<int>(1, in.u16());
    rest_.remove_prefix(std::min(kPlaceableSize, rest_.size()));
    const auto size = [&](double units) {
        return std::clamp(std::abs(units) * kPixelsPerInch / unitsPerInch, 1.0, kLargestMetafile);
    };
    width_ = size(right - left);
    height_ = size(bottom - top);
    canvas_.context.mapping.x = {left, right - left, 0, width_};
    canvas_.context.mapping.y = {top, bottom - top, 0, height_};
}

std::optional<Metafile> WindowsReader::read() {
    if (rest_.starts_with(kPlaceable)) readPlaceable();
    rest_.remove_prefix(std::min(kHeaderSize, rest_.size()));
    while (rest_.size() >= kWindowsRecordHeader && !canvas_.isFull()) {
        Fields in(rest_);
        const auto size = std::size_t(in.u32()) * 2;
        const Function function{in.u16()};
        if (size < kWindowsRecordHeader || size > rest_.size() || function == Function{}) break;
        readRecord(function, Fields(rest_.substr(kWindowsRecordHeader, size - kWindowsRecordHeader)));
        rest_.remove_prefix(size);
    }
    if (width_ == 0) return {};
    return Metafile{width_, height_, canvas_.take()};
}

/// The function's number alone determines which of these knows it.
void WindowsReader::readRecord(Function function, Fields in) {
    readContext(function, in);
    readObject(function, in);
    readShape(function, in);
    readText(function, in);
    readBitmap(function, in);
}

/// The first window is the size of a picture that has no other.
void WindowsReader::setWindow(DrawnPoint extent) {
    auto& mapping = canvas_.context.mapping;
    if (extent.x == 0 || extent.y == 0) return;
    if (width_ == 0) {
        constexpr double kUsualSize = 256;
        const double most = std::max(std::abs(extent.x), std::abs(extent.y)), scale = std::min(1.0, kUsualSize / most);
        width_ = mapping.x.viewExtent = std::max(1.0, std::abs(extent.x) * scale);
        height_ = mapping.y.viewExtent = std::max(1.0, std::abs(extent.y) * scale);
    }
    mapping.x.windowExtent = extent.x;
    mapping.y.windowExtent = extent.y;
}

void WindowsReader::readContext(Function function, Fields in) {
    using enum Function;
    auto& context = canvas_.context;
    auto &x = context.mapping.x, &y = context.mapping.y;
    switch (function) {
    case kSaveDC: return canvas_.save();
    case kRestoreDC: return canvas_.restore(in.i16());
    case kSetPolyFillMode: context.fillsWindings = in.u16() == 2; return;
    case kSetTextAlign: context.textAlign = in.u16(); return;
    case kSetTextColor: context.textColour = colourOf(in.u32()); return;
    case kMoveTo: return canvas_.moveTo(yThenX(in));
    case kSetWindowExt: return setWindow(yThenX(in));
    case kSetWindowOrg: y.windowOrigin = in.i16(), x.windowOrigin = in.i16(); return;
    case kOffsetWindowOrg: y.windowOrigin += in.i16(), x.windowOrigin += in.i16(); return;
    case kScaleWindowExt: {
        const double yBy = in.i16(), yTimes = in.i16(), xBy = in.i16(), xTimes = in.i16();
        if (yBy == 0 || yTimes == 0 || xBy == 0 || xTimes == 0) return;
        y.windowExtent *= yTimes / yBy;
        x.windowExtent *= xTimes / xBy;
    }
    default: break;
    }
}

/// A new object gets the lowest free number.
void WindowsReader::create(MetafileObject object) {
    if (free_.empty()) return objects_.push_back(std::move(object));
    objects_[*free_.begin()] = std::move(object);
    free_.erase(free_.begin());
}

void WindowsReader::remove(std::size_t number) {
    if (number < objects_.size()) free_.insert(number);
}

void WindowsReader::readObject(Function function, Fields in) {
    using enum Function;
    switch (function) {
    case kCreatePen: {
        const auto style = in.u16();
        const double width = in.i16();
        in.skip(2);
        return create(penOf(style, width, in.u32()));
    }
    case kCreateBrush: {
        const auto style = in.u16();
        const auto colour = in.u32();
        return create(brushOf(style, colour, in.u16()));
    }
    case kCreateFont: return create(fontOf(in));
    case kCreatePatternBrush:
    case kCreateDibPatternBrush: return create(DrawnBrush{DrawnBrush::Style::None, 0, 0});
    case kCreatePalette:
    case kCreateRegion: return create({});
    case kDeleteObject: return remove(in.u16());
    case kSelectObject:
        if (const auto number = in.u16(); number < objects_.size()) canvas_.select(objects_[number]);
    default: break;
    }
}

void WindowsReader::readShape(Function function, Fields in) {
    using enum Function;
    switch (function) {
    case kLineTo: return canvas_.lineTo(yThenX(in));
    case kPolyline: return canvas_.lines(pointsOf(in, in.u16()));
    case kPolygon: return canvas_.polygons({pointsOf(in, in.u16())});
    case kRectangle: return canvas_.rectangle(bottomToLeft(in));
    case kEllipse: return canvas_.ellipse(bottomToLeft(in));
    case kRoundRect: {
        const auto corner = yThenX(in);
        return canvas_.roundRectangle(bottomToLeft(in), corner.x, corner.y);
    }
    case kArc:
    case kPie:
    case kChord: {
        const auto to = yThenX(in), from = yThenX(in);
        const auto kind = function == kArc ? ArcKind::Open : function == kPie ? ArcKind::Pie : ArcKind::Chord;
        return canvas_.arc(bottomToLeft(in), from, to, kind);
    }
    case kSetPixel: {
        const auto colour = colourOf(in.u32());
        return canvas_.fill(boxAt(yThenX(in), {1, 1}), {DrawnBrush::Style::Solid, colour, 0});
    }
    case kPolyPolygon: {
        const std::size_t count = in.u16();
        if (!in.hasRoomFor(count, 2)) return;
        std::vector<std::size_t> counts;
        for (std::size_t i = 0; i < count; ++i) counts.push_back(in.u16());
        std::vector<MetafileCanvas::Points> polygons;
        for (const auto points : counts) polygons.push_back(pointsOf(in, points));
        return canvas_.polygons(polygons);
    }
    default: break;
    }
}

void WindowsReader::readText(Function function, Fields in) {
    using enum Function;
    const auto decoded = [](std::string_view bytes) { return basic::CodePage::windows1252().decode(bytes); };
    if (function == kTextOut) {
        const std::size_t count = in.u16();
        const auto text = in.bytes(count);
        in.skip(count % 2);
        return canvas_.text(yThenX(in), decoded(text));
    }
    if (function != kExtTextOut) return;
    constexpr unsigned kOpaqueOrClipped = 6;
    constexpr std::size_t kBoxSize = 8;
    const auto at = yThenX(in);
    const std::size_t count = in.u16();
    if (in.u16() & kOpaqueOrClipped) in.skip(kBoxSize);
    canvas_.text(at, decoded(in.bytes(count)));
}

/// Some records have only a rectangle for the brush.
void WindowsReader::readBitmap(Function function, Fields in) {
    using enum Function;
    if (function == kPatBlt) {
        const auto operation = in.u32();
        const auto size = yThenX(in);
        return fillBy(canvas_, operation, boxAt(yThenX(in), size));
    }
    const bool isStretched = function == kStretchDib || function == kDibStretchBlt;
    if (!isStretched && function != kDibBitBlt && function != kSetDibToDev) return;
    DrawnPoint part, partSize, to, size;
    if (function == kSetDibToDev) {
        in.skip(6); // use of colours, lines
        part = yThenX(in);
        size = partSize = yThenX(in);
        to = yThenX(in);
    } else {
        in.skip(function == kStretchDib ? 6 : 4);
        if (isStretched) partSize = yThenX(in);
        part = yThenX(in);
        size = yThenX(in);
        to = yThenX(in);
        if (!isStretched) partSize = size;
    }
    const auto dib = partsOfDib(in.rest());
    const bool isFromBottom = function == kStretchDib || function == kSetDibToDev;
    canvas_.bitmap(boxAt(to, size), boxAt(part, partSize), dib, isFromBottom);
}

} // namespace

bool isWindowsMetafile(std::string_view bytes) {
    if (bytes.starts_with(kPlaceable)) return true;
    return (bytes.starts_with("\1\0\x09\0"sv) || bytes.starts_with("\2\0\x09\0"sv)) && bytes.size() >= kHeaderSize;
}

std::optional<Metafile> readWindowsMetafile(std::string_view bytes) { return WindowsReader(bytes).read(); }

} // namespace host
