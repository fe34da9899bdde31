#include "Apps/workbench/properties/design_history.h"
#include "Basic/runtime_error.h"
#include <algorithm>

namespace workbench {

namespace {

constexpr std::size_t kMostSteps = 200;

} // namespace

void DesignHistory::set(const vbide::Ref<vbide::VBComponent>& component, const vbide::Ref<vbide::Properties>& object,
                        const std::vector<DesignChange>& changes) {
    std::vector<Before> changed;
    (void)basic::attempt([&] { // changes with a form's position, and is therefore restored after it
        const auto start = object->Item("StartUpPosition");
        changed.push_back({start, start->Value()});
    });
    try {
        for (const auto& change : changes) {
            const auto property = object->Item(change.property);
            const auto before = property->Value();
            property->Value(change.value);
            changed.push_back({property, before});
        }
    } catch (const basic::RuntimeError&) {
        putBack(changed);
        throw;
    }
    std::erase_if(changed, [](const Before& one) { return one.property->Value() == one.value; });
    if (!changed.empty()) remember({component, [changed] { return putBack(changed); }});
}

void DesignHistory::did(const vbide::Ref<vbide::VBComponent>& component, std::function<void()> takeBack) {
    remember({component, [takeBack = std::move(takeBack)] { return basic::attempt(takeBack).Number == 0; }});
}

void DesignHistory::remember(Step step) {
    steps_.push_back(std::move(step));
    if (steps_.size() > kMostSteps) steps_.pop_front();
}

bool DesignHistory::undo(const vbide::Ref<vbide::VBComponent>& component) {
    for (;;) {
        const auto last =
            std::find_if(steps_.rbegin(), steps_.rend(), [&](const auto& step) { return step.component == component; });
        if (last == steps_.rend()) return false;
        const auto step = *last;
        steps_.erase(std::next(last).base());
        if (step.takeBack()) return true;
    }
}

bool DesignHistory::putBack(const std::vector<Before>& before) {
    bool any = false;
    for (auto at = before.rbegin(); at != before.rend(); ++at)
        any = basic::attempt([&] { at->property->Value(at->value); }).Number == 0 || any;
    return any;
}

} // namespace workbench
