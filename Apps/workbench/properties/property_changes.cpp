#include "Apps/workbench/properties/property_changes.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/property_source.h"
#include <utility>

namespace workbench {

namespace {

using Property = vbide::Ref<vbide::Property>;

/// What can be seen of a value, to notice whether it changed.
struct SeenValue {
    fernwick::Variant value;
    std::string image;
    std::vector<std::string> items;
    std::vector<fernwick::Variant> members;
    bool operator==(const SeenValue&) const = default;
};

SeenValue seen(const Property& property) {
    SeenValue now{property->Value(), host::imageOf(property), host::itemsOf(property), {}};
    if (host::detailsOf(property).kind == host::PropertyKind::Font)
        for (const auto& member : property->ObjectValue()->items()) now.members.push_back(member->Value());
    return now;
}

using Restorers = std::vector<std::function<void()>>;

/// False if nothing could be restored, as the objects have been removed.
bool restoreAll(const Restorers& restorers) {
    bool any = false;
    for (auto at = restorers.rbegin(); at != restorers.rend(); ++at) any = basic::attempt(*at).Number == 0 || any;
    return any;
}

} // namespace

void changeAsOneStep(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component,
                     const SharedProperty& property, const PropertyChange& change) {
    Restorers restorers;
    try {
        for (const auto& one : property) {
            const auto before = seen(one);
            restorers.push_back(host::restorerOf(one));
            change(one);
            if (seen(one) == before) restorers.pop_back();
        }
    } catch (const basic::RuntimeError&) {
        restoreAll(restorers);
        throw;
    }
    if (!restorers.empty())
        history.did(component, [restorers] {
            if (!restoreAll(restorers)) throw basic::RuntimeError(basic::kAutomationError);
        });
}

PropertyChange toFont(const std::vector<DesignChange>& members) {
    return [members](const Property& property) {
        const auto font = property->ObjectValue();
        for (const auto& member : members) font->Item(member.property)->Value(member.value);
    };
}

} // namespace workbench
