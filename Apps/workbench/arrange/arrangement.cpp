#include "Apps/workbench/arrange/arrangement.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

using Arranged = std::vector<ArrangedControl>;
using Places = std::vector<QRectF>;

double rounded(double value, double step) { return std::round(value / step) * step; }

/// Moves each place by what a function of its normalized place returns.
template <class By>
Places moved(const Arranged& controls, By by) {
    Places places;
    for (const auto& control : controls) places.push_back(control.place.translated(by(control.place.normalized())));
    return places;
}

template <class Sized>
Places sized(const Arranged& controls, Sized sized) {
    Places places;
    for (const auto& control : controls) places.push_back(control.hasSize ? sized(control.place) : control.place);
    return places;
}

Places aligned(Arrangement how, const Arranged& controls, const QPointF& step) {
    const auto lead = controls.back().place.normalized();
    return moved(controls, [&](const QRectF& place) -> QPointF {
        switch (how) {
        case Arrangement::AlignLefts: return {lead.left() - place.left(), 0};
        case Arrangement::AlignCentres: return {rounded(lead.center().x() - place.center().x(), step.x()), 0};
        case Arrangement::AlignRights: return {lead.right() - place.right(), 0};
        case Arrangement::AlignTops: return {0, lead.top() - place.top()};
        case Arrangement::AlignMiddles: return {0, rounded(lead.center().y() - place.center().y(), step.y())};
        case Arrangement::AlignBottoms: return {0, lead.bottom() - place.bottom()};
        default: return {};
        }
    });
}

Places onTheGrid(const Arranged& controls, const SnapGrid& grid) {
    Places places;
    for (const auto& control : controls) {
        places.push_back(control.place);
        places.back().moveTopLeft(onGrid(control.place.topLeft(), grid));
    }
    return places;
}

Places withSizeOnTheGrid(const Arranged& controls, const SnapGrid& grid) {
    return sized(controls, [&](const QRectF& place) {
        const auto corner = onGrid(place.bottomRight(), grid);
        const auto least = place.topLeft() + QPointF(grid.step, grid.step);
        return QRectF(place.topLeft(), QPointF(std::max(corner.x(), least.x()), std::max(corner.y(), least.y())));
    });
}

Places withSizeOfLeader(Arrangement how, const Arranged& controls) {
    const auto size = controls.back().place.size();
    return sized(controls, [&](QRectF place) {
        if (how != Arrangement::SameHeight) place.setWidth(size.width());
        if (how != Arrangement::SameWidth) place.setHeight(size.height());
        return place;
    });
}

// ---- spacing --------------------------------------------------------------------------------------------------------

/// The direction in which controls are spaced.
struct Axis {
    bool down = false;
    double step = 1;

    double start(const QRectF& place) const { return down ? place.normalized().top() : place.normalized().left(); }
    double length(const QRectF& place) const { return std::abs(down ? place.height() : place.width()); }
    QRectF moved(const QRectF& place, double to) const {
        const double by = to - start(place);
        return down ? place.translated(0, by) : place.translated(by, 0);
    }
};

/// The numbers of the controls in the order in which they appear.
std::vector<std::size_t> orderAlong(const Axis& axis, const Arranged& controls) {
    std::vector<std::size_t> order(controls.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    std::stable_sort(order.begin(), order.end(),
                     [&](auto a, auto b) { return axis.start(controls[a].place) < axis.start(controls[b].place); });
    return order;
}

/// First and last keep their places, and all gaps become equal.
Places spacedEqually(const Axis& axis, const Arranged& controls) {
    const auto order = orderAlong(axis, controls);
    const auto &first = controls[order.front()].place, &last = controls[order.back()].place;
    double within = 0;
    for (std::size_t i = 1; i + 1 < order.size(); ++i) within += axis.length(controls[order[i]].place);
    double at = axis.start(first) + axis.length(first);
    const double gap = (axis.start(last) - at - within) / double(order.size() - 1);
    Places places(controls.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto& place = controls[order[i]].place;
        const bool isEnd = i == 0 || i + 1 == order.size();
        places[order[i]] = isEnd ? place : axis.moved(place, rounded(at + gap, axis.step));
        if (!isEnd) at += gap + axis.length(place);
    }
    return places;
}

/// The leader keeps its place; each gap grows by a distance.
Places spacedBy(double more, const Axis& axis, const Arranged& controls) {
    const auto order = orderAlong(axis, controls);
    const auto leader = std::find(order.begin(), order.end(), controls.size() - 1) - order.begin();
    Places places(controls.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto& place = controls[order[i]].place;
        places[order[i]] = axis.moved(place, axis.start(place) + more * double(std::ptrdiff_t(i) - leader));
    }
    return places;
}

/// The leader keeps its place; the others follow edge to edge.
Places spacedByNothing(const Axis& axis, const Arranged& controls) {
    const auto order = orderAlong(axis, controls);
    Places places(controls.size());
    double at = axis.start(controls[order.front()].place);
    for (const auto one : order) {
        places[one] = axis.moved(controls[one].place, at);
        at += axis.length(controls[one].place);
    }
    const double back = axis.start(controls.back().place) - axis.start(places.back());
    for (auto& place : places) place = axis.moved(place, axis.start(place) + back);
    return places;
}

/// Moves all controls together.
Places centred(const Axis& axis, const Arranged& controls, const QRectF& inner) {
    auto all = controls.front().place.normalized();
    for (const auto& control : controls) {
        const auto place = control.place.normalized();
        all.setCoords(std::min(all.left(), place.left()), std::min(all.top(), place.top()),
                      std::max(all.right(), place.right()), std::max(all.bottom(), place.bottom()));
    }
    const auto by = inner.center() - all.center();
    const double along = rounded(axis.down ? by.y() : by.x(), axis.step);
    return moved(controls, [&](const QRectF&) { return axis.down ? QPointF(0, along) : QPointF(along, 0); });
}

} // namespace

std::size_t fewestFor(Arrangement how) {
    switch (how) {
    case Arrangement::AlignToGrid:
    case Arrangement::SizeToGrid:
    case Arrangement::CentreAcross:
    case Arrangement::CentreDown: return 1;
    case Arrangement::EqualSpaceAcross:
    case Arrangement::EqualSpaceDown: return 3;
    default: return 2;
    }
}

std::vector<QRectF> arranged(Arrangement how, const std::vector<ArrangedControl>& controls,
                             const ArrangementSpace& space) {
    const Axis across{false, space.step.x()}, down{true, space.step.y()};
    switch (how) {
    case Arrangement::AlignToGrid: return onTheGrid(controls, space.grid);
    case Arrangement::SizeToGrid: return withSizeOnTheGrid(controls, space.grid);
    case Arrangement::SameWidth:
    case Arrangement::SameHeight:
    case Arrangement::SameSize: return withSizeOfLeader(how, controls);
    case Arrangement::EqualSpaceAcross: return spacedEqually(across, controls);
    case Arrangement::MoreSpaceAcross: return spacedBy(space.grid.step, across, controls);
    case Arrangement::LessSpaceAcross: return spacedBy(-space.grid.step, across, controls);
    case Arrangement::NoSpaceAcross: return spacedByNothing(across, controls);
    case Arrangement::EqualSpaceDown: return spacedEqually(down, controls);
    case Arrangement::MoreSpaceDown: return spacedBy(space.grid.step, down, controls);
    case Arrangement::LessSpaceDown: return spacedBy(-space.grid.step, down, controls);
    case Arrangement::NoSpaceDown: return spacedByNothing(down, controls);
    case Arrangement::CentreAcross: return centred(across, controls, space.inner);
    case Arrangement::CentreDown: return centred(down, controls, space.inner);
    default: return aligned(how, controls, space.step);
    }
}

} // namespace workbench
