// Records of the 32-bit format that set the device context.
#include "Host/metafiles/enhanced_reader.h"
#include "Host/metafiles/utf16_text.h"

namespace host {

namespace {

enum MapMode : std::uint32_t { kText = 1, kTwips = 6, kIsotropic = 7, kAnisotropic = 8 };

/// The length of a unit in the modes from tenths of a millimetre to twips.
constexpr double kMillimetres[] = {0.1, 0.01, 0.254, 0.0254, 25.4 / 1440};

Transform transformOf(Fields& in) {
    Transform read;
    for (auto* value : {&read.a, &read.b, &read.c, &read.d, &read.e, &read.f}) *value = in.f32();
    return read;
}

void scale(double& extent, double times, double by) {
    if (times != 0 && by != 0) extent *= times / by;
}

LogicalFont wideFontOf(Fields& in) {
    constexpr int kBold = 600;
    constexpr std::size_t kFaceBytes = 64;
    LogicalFont font;
    font.height = in.i32();
    in.skip(4);
    font.angle = in.i32() / 10.0;
    in.skip(4);
    font.isBold = in.i32() >= kBold;
    font.isItalic = in.u8() != 0;
    font.isUnderlined = in.u8() != 0;
    in.skip(6); // struck out, character set, precisions, quality, pitch
    font.face = textOfUtf16(in.bytes(kFaceBytes));
    return font;
}

} // namespace

void EnhancedReader::readContext(EnhancedRecord type, Fields in) {
    using enum EnhancedRecord;
    auto& context = canvas_.context;
    switch (type) {
    case kSaveDC: return canvas_.save();
    case kRestoreDC: return canvas_.restore(in.i32());
    case kSetPolyFillMode: context.fillsWindings = in.u32() == 2; return;
    case kSetTextAlign: context.textAlign = in.u32(); return;
    case kSetTextColor: context.textColour = colourOf(in.u32()); return;
    case kSetArcDirection: context.drawsClockwise = in.u32() == 2; return;
    case kMoveTo: {
        const double x = in.i32();
        return canvas_.moveTo({x, double(in.i32())});
    }
    default: break;
    }
}

/// All modes but the last two have a fixed scale, and y grows upwards in those with a unit of length.
void EnhancedReader::setMapMode(std::uint32_t mode) {
    auto& mapping = canvas_.context.mapping;
    mapping.isIsotropic = mode == kIsotropic;
    if (mode >= kIsotropic || mode < kText) return;
    mapping.x.windowExtent = mapping.y.windowExtent = mapping.x.viewExtent = mapping.y.viewExtent = 1;
    if (mode == kText) return;
    mapping.x.viewExtent = kMillimetres[mode - kText - 1] * pixelsPerMillimetre_.x;
    mapping.y.viewExtent = -kMillimetres[mode - kText - 1] * pixelsPerMillimetre_.y;
}

void EnhancedReader::readMapping(EnhancedRecord type, Fields in) {
    using enum EnhancedRecord;
    auto& mapping = canvas_.context.mapping;
    auto &x = mapping.x, &y = mapping.y;
    switch (type) {
    case kSetMapMode: return setMapMode(in.u32());
    case kSetWindowExt: x.windowExtent = in.i32(), y.windowExtent = in.i32(); return;
    case kSetWindowOrg: x.windowOrigin = in.i32(), y.windowOrigin = in.i32(); return;
    case kSetViewportExt: x.viewExtent = in.i32(), y.viewExtent = in.i32(); return;
    case kSetViewportOrg: x.viewOrigin = in.i32(), y.viewOrigin = in.i32(); return;
    case kScaleWindowExt:
    case kScaleViewportExt: {
        const bool isWindow = type == kScaleWindowExt;
        const double xTimes = in.i32(), xBy = in.i32(), yTimes = in.i32(), yBy = in.i32();
        scale(isWindow ? x.windowExtent : x.viewExtent, xTimes, xBy);
        return scale(isWindow ? y.windowExtent : y.viewExtent, yTimes, yBy);
    }
    case kSetWorldTransform: mapping.world = transformOf(in); return;
    case kModifyWorldTransform: {
        enum : std::uint32_t { kIdentity = 1, kBefore, kAfter, kSet };
        const auto change = transformOf(in);
        const auto how = in.u32();
        if (how == kIdentity) mapping.world = {};
        if (how == kBefore) mapping.world = change.then(mapping.world);
        if (how == kAfter) mapping.world = mapping.world.then(change);
        if (how == kSet) mapping.world = change;
    }
    default: break;
    }
}

void EnhancedReader::readObject(EnhancedRecord type, Fields in) {
    using enum EnhancedRecord;
    const auto number = in.u32();
    switch (type) {
    case kSelectObject: return select(number);
    case kDeleteObject: objects_.erase(number); return;
    case kCreatePen: {
        const auto style = in.u32();
        const double width = in.i32();
        in.skip(4);
        objects_[number] = penOf(style, width, in.u32());
        return;
    }
    case kExtCreatePen: {
        in.skip(16); // where its bitmap is
        const auto style = in.u32();
        const double width = in.u32();
        in.skip(4);
        objects_[number] = penOf(style, width, in.u32());
        return;
    }
    case kCreateBrush: {
        const auto style = in.u32(), colour = in.u32();
        objects_[number] = brushOf(style, colour, in.u32());
        return;
    }
    case kCreateMonoBrush:
    case kCreateDibPatternBrush: objects_[number] = DrawnBrush{DrawnBrush::Style::None, 0, 0}; return;
    case kCreateFont: objects_[number] = wideFontOf(in);
    default: break;
    }
}

/// The highest bit marks the objects that every device context has.
void EnhancedReader::select(std::uint32_t number) {
    constexpr std::uint32_t kStock = 0x80000000, kNoBrush = 5, kWhitePen = 6, kBlackPen = 7, kNoPen = 8;
    constexpr DrawnColour kGreys[] = {0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0};
    if (!(number & kStock)) {
        if (const auto found = objects_.find(number); found != objects_.end()) canvas_.select(found->second);
        return;
    }
    const auto stock = number & ~kStock;
    if (stock < kNoBrush) canvas_.select(DrawnBrush{DrawnBrush::Style::Solid, kGreys[stock], 0});
    if (stock == kNoBrush) canvas_.select(DrawnBrush{DrawnBrush::Style::None, 0, 0});
    if (stock == kWhitePen) canvas_.select(DrawnPen{DrawnPen::Style::Solid, 1, kGreys[0]});
    if (stock == kBlackPen) canvas_.select(DrawnPen{});
    if (stock == kNoPen) canvas_.select(DrawnPen{DrawnPen::Style::None, 1, 0});
}

} // namespace host
