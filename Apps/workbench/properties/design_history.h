#pragma once
// Changes that the user makes to forms, so that they can be taken back.
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

/// One for the whole desktop. Each step belongs to a component.
class DesignHistory {
public:
    /// Sets properties of one object of a component as one step. The first one that is refused ends it; what was set
    /// before goes back, and the error comes out.
    void set(const vbide::Ref<vbide::VBComponent>& component, const vbide::Ref<vbide::Properties>& object,
             const std::vector<DesignChange>& changes);
    /// Something else was done to a component; `takeBack` undoes it.
    void did(const vbide::Ref<vbide::VBComponent>& component, std::function<void()> takeBack);
    /// Takes back the last step of a component that changes something; what was done to controls that are gone doesn't.
    /// False where there is none.
    bool undo(const vbide::Ref<vbide::VBComponent>& component);

private:
    struct Before {
        vbide::Ref<vbide::Property> property;
        fernwick::Variant value;
    };
    struct Step {
        vbide::Ref<vbide::VBComponent> component;
        /// False when nothing could be taken back.
        std::function<bool()> takeBack;
    };
    static bool putBack(const std::vector<Before>& before);
    void remember(Step step);

    std::deque<Step> steps_;
};

} // namespace workbench
