#include "Apps/workbench/designer/form_picture.h"
#include <QLineF>
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// Whether a place is within `reach` of a line.
bool isNear(const QLineF& line, const QPointF& place, double reach) {
    const auto along = line.p2() - line.p1(), there = place - line.p1();
    const double length = QPointF::dotProduct(along, along);
    const double part = length == 0 ? 0 : std::clamp(QPointF::dotProduct(there, along) / length, 0.0, 1.0);
    const auto apart = there - along * part;
    return QPointF::dotProduct(apart, apart) <= reach * reach;
}

/// The distance in a direction, with a deviation to the side counted twice. Negative for what is not in that
/// direction.
double wayTo(const QPointF& from, const QPointF& to, const QPointF& direction) {
    const auto way = to - from;
    const double ahead = QPointF::dotProduct(way, direction);
    const double aside = std::abs(QPointF::dotProduct(way, QPointF(direction.y(), direction.x())));
    return ahead <= 0 || aside > 2 * ahead ? -1 : ahead + 2 * aside;
}

} // namespace

bool FormPicture::hasMenuBar() const {
    return std::any_of(menus.begin(), menus.end(), [](const auto& menu) { return menu.visible; });
}

QMarginsF FormPicture::border() const { return frame + QMarginsF(0, hasMenuBar() ? kMenuBarHeight : 0, 0, 0); }

const DrawnControl* FormPicture::find(const vbide::Ref<vbide::VBControl>& control) const {
    const auto found =
        std::find_if(controls.begin(), controls.end(), [&](const auto& drawn) { return drawn.control == control; });
    return !control || found == controls.end() ? nullptr : &*found;
}

const DrawnControl* FormPicture::at(const QPointF& place) const {
    // a line is also hit close to its pixels
    constexpr double kReach = 3;
    for (auto drawn = controls.rbegin(); drawn != controls.rend(); ++drawn) {
        const auto& line = drawn->place;
        if (drawn->look.kind != ControlKind::Line ? drawn->clip.contains(place)
                                                  : isNear(QLineF(line.topLeft(), line.bottomRight()), place, kReach))
            return &*drawn;
    }
    return nullptr;
}

std::vector<const DrawnControl*> FormPicture::tabOrder() const {
    std::vector<const DrawnControl*> order;
    for (const auto& drawn : controls) order.push_back(&drawn);
    std::stable_sort(order.begin(), order.end(),
                     [](const auto* a, const auto* b) { return a->tabIndex < b->tabIndex; });
    return order;
}

const DrawnControl* FormPicture::containerAt(const QPointF& place) const {
    const auto* drawn = at(place);
    while (drawn && !isContainer(drawn->control->ProgId()))
        drawn = drawn->container < 0 ? nullptr : &controls[std::size_t(drawn->container)];
    return drawn;
}

const DrawnControl* FormPicture::beside(const DrawnControl& from, const QPointF& direction) const {
    const DrawnControl* nearest = nullptr;
    double shortest = 0;
    for (const auto& candidate : controls) {
        const double way = wayTo(from.place.center(), candidate.place.center(), direction);
        if (way < 0 || (nearest && way >= shortest)) continue;
        nearest = &candidate;
        shortest = way;
    }
    return nearest;
}

} // namespace workbench
