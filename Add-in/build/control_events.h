#pragma once
// Finds the procedures of a form that handle events, and the objects that raise them.
#include "Add-in/platform/host_project.h"
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace fernwick {

class Procedure;

/// A procedure that handles an event of a control.
struct ControlEvent {
    basic::Ref<vbide::VBControl> control;
    /// The part after the control's name and its underscore.
    std::string name;
};

/// The controls of one form, indexed by name because a form has many procedures and many controls.
class FormControls {
public:
    /// Skips a control whose name cannot be read, after a report.
    FormControls(Procedure& here, const basic::Ref<vbide::VBForm>& designer);

    /// Returns the first control, in the designer's order, for which the procedure's name begins with the control's
    /// name and "_": "Pic" claims "Pic_2_Click" too. Case-sensitive.
    std::optional<ControlEvent> IsControlEvent(const std::string& procedureName) const;

private:
    std::vector<basic::Ref<vbide::VBControl>> controls_;
    std::unordered_map<std::string, std::size_t> places_;
};

/// Case-sensitive: "form_load" is not an event.
bool IsFormEvent(const std::string& name);
/// False only for "DRAGDROP" and "DRAGOVER". Case-sensitive, so "DragDrop" is accepted. The compiler checks other
/// events.
bool IsValidTavletEvent(const std::string& eventName);
/// Whether devices raise this event of forms ("Form_Load"). Case-insensitive.
bool IsValidFormEvent(const std::string& name);

} // namespace fernwick
