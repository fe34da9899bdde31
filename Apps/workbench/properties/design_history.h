#pragma once
// The undo history of changes to forms.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/form_change.h"
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace workbench {

/// A new value of one property.
struct DesignChange {
    std::string property;
    fernwick::Variant value;
};

void setAll(const vbide::Ref<vbide::Properties>& object, const std::vector<DesignChange>& changes);

/// There is one for the whole desktop. Each step belongs to a component.
class DesignHistory {
public:
    using Component = vbide::Ref<vbide::VBComponent>;

    /// Runs an edit and adds everything that it, and the handlers of its events, changed in the form as one step. The
    /// menu adds the step's name to "Undo". If the edit fails, restores the form and throws the error.
    void record(const Component& component, const std::string& step, const std::function<void()>& edit);
    /// Undoes the last step of a component that still has an effect, skipping those on removed controls. False if there
    /// is none.
    bool undo(const Component& component);
    bool redo(const Component& component);
    /// The name of the step that `undo` would undo; nothing if there is none.
    std::optional<std::string> stepToUndo(const Component& component) const;
    std::optional<std::string> stepToRedo(const Component& component) const;

private:
    struct Step {
        Component component;
        std::string name;
        std::function<void()> takeBack, repeat;
        std::function<bool()> hasEffect;
    };
    using Steps = std::deque<Step>;

    static std::optional<Step> stepOf(const Component& component, const std::string& oldName,
                                      const host::FormChange& change);
    void remember(Step step);
    static void add(Steps& steps, Step step);
    static std::optional<std::string> nameOfLast(const Steps& steps, const Component& component);
    static std::optional<Step> takeLast(Steps& steps, const Component& component);

    Steps done_, undone_;
};

} // namespace workbench
