#pragma once
// What both formats store alike: colours, pens, brushes.
#include "Host/metafiles/fields.h"
#include "Host/metafiles/metafile_canvas.h"

namespace host {

/// The file has red in the lowest byte.
DrawnColour colourOf(std::uint32_t stored);
DrawnPen penOf(std::uint32_t style, double width, std::uint32_t colour);
DrawnBrush brushOf(std::uint32_t style, std::uint32_t colour, std::uint32_t hatch);

inline LogicalBox boxAt(DrawnPoint at, DrawnPoint size) { return {at.x, at.y, at.x + size.x, at.y + size.y}; }

/// A brush fills a rectangle; all other operations copy the bitmap.
inline constexpr std::uint32_t kPatternCopy = 0x00F00021, kBlackness = 0x00000042, kWhiteness = 0x00FF0062;

/// Fills a rectangle as an operation without a bitmap does.
void fillBy(MetafileCanvas& canvas, std::uint32_t operation, const LogicalBox& box);

} // namespace host
