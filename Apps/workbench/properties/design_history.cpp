#include "Apps/workbench/properties/design_history.h"
#include "Basic/runtime_error.h"
#include <algorithm>

namespace workbench {

namespace {

constexpr std::size_t kMostSteps = 200;

} // namespace

void setAll(const vbide::Ref<vbide::Properties>& object, const std::vector<DesignChange>& changes) {
    for (const auto& change : changes) object->Item(change.property)->Value(change.value);
}

void DesignHistory::record(const Component& component, const std::string& step, const std::function<void()>& edit) {
    const auto name = component->Name();
    const auto before = host::snapshotOf(component->Designer());
    const auto change = [&] { return host::FormChange(before, host::snapshotOf(component->Designer())); };
    try {
        edit();
    } catch (const basic::RuntimeError&) {
        (void)basic::attempt([&] { change().undo(); });
        throw;
    }
    // fails if a handler removed the component
    (void)basic::attempt([&] {
        if (auto done = stepOf(component, name, change())) {
            done->name = step;
            remember(std::move(*done));
        }
    });
}

/// The name of a form is in more places than its description. Nothing if nothing changed.
std::optional<DesignHistory::Step> DesignHistory::stepOf(const Component& component, const std::string& oldName,
                                                         const host::FormChange& change) {
    const auto newName = component->Name();
    if (change.isEmpty() && newName == oldName) return {};
    return Step{component,
                {},
                [=] {
                    if (newName != oldName) component->Name(oldName);
                    change.undo();
                },
                [=] {
                    if (newName != oldName) component->Name(newName);
                    change.redo();
                },
                [=] { return newName != oldName || change.hasEffect(); }};
}

void DesignHistory::add(Steps& steps, Step step) {
    steps.push_back(std::move(step));
    if (steps.size() > kMostSteps) steps.pop_front();
}

void DesignHistory::remember(Step step) {
    std::erase_if(undone_, [&](const auto& one) { return one.component == step.component; });
    add(done_, std::move(step));
}

/// Drops the steps that have no effect any more.
std::optional<DesignHistory::Step> DesignHistory::takeLast(Steps& steps, const Component& component) {
    for (;;) {
        const auto last =
            std::find_if(steps.rbegin(), steps.rend(), [&](const auto& step) { return step.component == component; });
        if (last == steps.rend()) return {};
        auto step = *last;
        steps.erase(std::next(last).base());
        if (step.hasEffect()) return step;
    }
}

bool DesignHistory::undo(const Component& component) {
    while (auto step = takeLast(done_, component)) {
        if (basic::attempt(step->takeBack).Number != 0) continue;
        add(undone_, std::move(*step));
        return true;
    }
    return false;
}

bool DesignHistory::redo(const Component& component) {
    while (auto step = takeLast(undone_, component)) {
        if (basic::attempt(step->repeat).Number != 0) continue;
        add(done_, std::move(*step));
        return true;
    }
    return false;
}

std::optional<std::string> DesignHistory::nameOfLast(const Steps& steps, const Component& component) {
    const auto last = std::find_if(steps.rbegin(), steps.rend(),
                                   [&](const auto& step) { return step.component == component && step.hasEffect(); });
    return last == steps.rend() ? std::nullopt : std::optional(last->name);
}

std::optional<std::string> DesignHistory::stepToUndo(const Component& component) const {
    return nameOfLast(done_, component);
}

std::optional<std::string> DesignHistory::stepToRedo(const Component& component) const {
    return nameOfLast(undone_, component);
}

} // namespace workbench
