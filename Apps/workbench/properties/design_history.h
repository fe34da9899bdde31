#pragma once
// The undo history of changes to forms.
#include "Add-in/platform/host_project.h"
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace workbench {

/// A new value of one property.
struct DesignChange {
    std::string property;
    fernwick::Variant value;
};

/// There is one for the whole desktop. Each step belongs to a component.
class DesignHistory {
public:
    /// Sets properties of one object of a component as one step. If one is refused, restores the earlier ones and
    /// throws the error.
    void set(const vbide::Ref<vbide::VBComponent>& component, const vbide::Ref<vbide::Properties>& object,
             const std::vector<DesignChange>& changes);
    /// Adds a step for another change of a component; `takeBack` undoes it.
    void did(const vbide::Ref<vbide::VBComponent>& component, std::function<void()> takeBack);
    /// Undoes the last step of a component that still has an effect, skipping those on removed controls. False if there
    /// is none.
    bool undo(const vbide::Ref<vbide::VBComponent>& component);

private:
    struct Before {
        vbide::Ref<vbide::Property> property;
        fernwick::Variant value;
    };
    struct Step {
        vbide::Ref<vbide::VBComponent> component;
        /// False if nothing could be undone.
        std::function<bool()> takeBack;
    };
    static bool putBack(const std::vector<Before>& before);
    void remember(Step step);

    std::deque<Step> steps_;
};

} // namespace workbench
