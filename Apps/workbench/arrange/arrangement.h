#pragma once
// Arranging several controls: alignment, equal sizes, spacing.
#include "Apps/workbench/arrange/form_grips.h"
#include <QRectF>
#include <vector>

namespace workbench {

enum class Arrangement {
    AlignLefts,
    AlignCentres,
    AlignRights,
    AlignTops,
    AlignMiddles,
    AlignBottoms,
    AlignToGrid,
    SameWidth,
    SameHeight,
    SameSize,
    SizeToGrid,
    EqualSpaceAcross,
    MoreSpaceAcross,
    LessSpaceAcross,
    NoSpaceAcross,
    EqualSpaceDown,
    MoreSpaceDown,
    LessSpaceDown,
    NoSpaceDown,
    CentreAcross,
    CentreDown
};

struct ArrangedControl {
    QRectF place;
    /// False for one that always has the same size, or is a line.
    bool hasSize = true;
};

/// The container of the controls.
struct ArrangementSpace {
    QRectF inner;
    SnapGrid grid;
    /// The smallest steps across and down, in pixels: a centre between two steps is rounded.
    QPointF step;
};

/// The number of controls that an arrangement needs.
std::size_t fewestFor(Arrangement how);

/// Returns the new places, in the order given. The last control leads: the others follow its edges and its size.
std::vector<QRectF> arranged(Arrangement how, const std::vector<ArrangedControl>& controls,
                             const ArrangementSpace& space);

} // namespace workbench
