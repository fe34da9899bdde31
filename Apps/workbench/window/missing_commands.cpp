#include "Apps/workbench/window/missing_commands.h"
#include <algorithm>

namespace workbench {

namespace {

using Items = fernwick::CommandItems;

constexpr auto kNotYet = "This version of Fernwick does not have this command yet.";

constexpr Items::Item Items::*kSettings[] = {&Items::gSettingsItem, &Items::gToolSettings};
constexpr Items::Item Items::*kFeatures[] = {&Items::gZoomItem, &Items::gToolZoom};

template <std::size_t Count>
bool isOneOf(const Items& items, Items::Item Items::*const (&some)[Count], const office::CommandBarControl& control) {
    return std::any_of(std::begin(some), std::end(some),
                       [&](auto item) { return (items.*item).shared().get() == &control; });
}

} // namespace

QString whyUnavailable(const fernwick::Modules& addIn, const host::BarControl& control) {
    const bool lacksSettings = &addIn.settings == &addIn.notInThisBuild;
    const bool lacksFeatures = &addIn.features == &addIn.notInThisBuild;
    const bool isMissing = (lacksSettings && isOneOf(addIn.items, kSettings, control)) ||
                           (lacksFeatures && isOneOf(addIn.items, kFeatures, control));
    return isMissing ? kNotYet : "";
}

} // namespace workbench
