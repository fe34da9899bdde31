#pragma once
// The place of a toolbar in the host's model, and in the user's settings.
#include "Host/model/bars/bars.h"
#include <Qt>
#include <array>
#include <compare>

namespace workbench {

struct BarSide {
    office::MsoBarPosition position;
    Qt::ToolBarArea area;
};
inline constexpr std::array kBarSides{
    BarSide{office::msoBarTop, Qt::TopToolBarArea},
    BarSide{office::msoBarBottom, Qt::BottomToolBarArea},
    BarSide{office::msoBarLeft, Qt::LeftToolBarArea},
    BarSide{office::msoBarRight, Qt::RightToolBarArea},
};
/// Returns the side of a position; the top, as for a new bar, if it is not a side.
Qt::ToolBarArea areaOf(int position);
/// Whether it is a side or floating.
bool isPlace(int position);
/// Whether bars at this side run from top to bottom.
inline bool isUpright(int position) { return position == office::msoBarLeft || position == office::msoBarRight; }

/// A bar's properties, as an add-in stores them. `left` and `top` are relative to the corner of the bars of its side,
/// or to the screen if the bar floats. `row` 1 is the outermost.
struct BarPlace {
    bool visible = true;
    int position = office::msoBarTop, row = 1, left = 0, top = 0;
    auto operator<=>(const BarPlace&) const = default;
    /// The position along its row.
    int begin() const { return isUpright(position) ? top : left; }
};
BarPlace placeOf(const host::Bar& bar);
void setPlace(host::Bar& bar, const BarPlace& place);

/// Stores the place of one of the host's own bars in the user's settings.
void storePlace(const host::Bar& bar);
/// A bar without a stored place keeps its place.
void restorePlace(host::Bar& bar);

} // namespace workbench
