#include "Host/metafiles/record_objects.h"

namespace host {

DrawnColour colourOf(std::uint32_t stored) { return (stored & 0xFF) << 16 | (stored & 0xFF00) | (stored >> 16 & 0xFF); }

DrawnPen penOf(std::uint32_t style, double width, std::uint32_t colour) {
    using Style = DrawnPen::Style;
    static constexpr Style kStyles[] = {Style::Solid,   Style::Dash,       Style::Dot,
                                        Style::DashDot, Style::DashDotDot, Style::None};
    const auto known = style & 0xF; // the higher bits are its ends and joins
    return {known < std::size(kStyles) ? kStyles[known] : Style::Solid, width, colourOf(colour)};
}

DrawnBrush brushOf(std::uint32_t style, std::uint32_t colour, std::uint32_t hatch) {
    enum { kSolid, kNone, kHatched };
    constexpr std::uint32_t kHatches = 6;
    if (style == kSolid) return {DrawnBrush::Style::Solid, colourOf(colour), 0};
    if (style == kHatched && hatch < kHatches) return {DrawnBrush::Style::Hatch, colourOf(colour), int(hatch)};
    return {DrawnBrush::Style::None, 0, 0};
}

void fillBy(MetafileCanvas& canvas, std::uint32_t operation, const LogicalBox& box) {
    constexpr DrawnColour kBlack = 0, kWhite = 0xFFFFFF;
    if (operation == kPatternCopy) canvas.fill(box, canvas.context.brush);
    if (operation == kBlackness) canvas.fill(box, {DrawnBrush::Style::Solid, kBlack, 0});
    if (operation == kWhiteness) canvas.fill(box, {DrawnBrush::Style::Solid, kWhite, 0});
}

} // namespace host
