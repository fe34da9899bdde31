#include "Apps/workbench/window/missing_commands.h"
#include <algorithm>

namespace workbench {

namespace {

using Items = fernwick::CommandItems;

constexpr auto kNotYet = "This version of Fernwick does not have this command yet.";

constexpr Items::Item Items::*kFeatures[] = {&Items::gZoomItem, &Items::gToolZoom};

bool needsFeatures(const Items& items, const office::CommandBarControl& control) {
    return std::any_of(std::begin(kFeatures), std::end(kFeatures),
                       [&](auto item) { return (items.*item).shared().get() == &control; });
}

} // namespace

QString whyUnavailable(const fernwick::Modules& addIn, const host::BarControl& control) {
    const bool lacksFeatures = &addIn.features == &addIn.notInThisBuild;
    return lacksFeatures && needsFeatures(addIn.items, control) ? kNotYet : "";
}

} // namespace workbench
