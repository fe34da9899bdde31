#pragma once
// Which procedures of a form are events, and whose.
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
    /// What stands behind the control's name and its underscore.
    std::string name;
};

/// The controls of one form by name, for a form has many procedures and many controls.
class FormControls {
public:
    /// A control whose name can't be read is reported and left out.
    FormControls(Procedure& here, const basic::Ref<vbide::VBForm>& designer);

    /// The first control, in the designer's order, with whose name and "_" the procedure's name begins: "Pic" claims
    /// "Pic_2_Click" too. Letter case counts.
    std::optional<ControlEvent> IsControlEvent(const std::string& procedureName) const;

private:
    std::vector<basic::Ref<vbide::VBControl>> controls_;
    std::unordered_map<std::string, std::size_t> places_;
};

/// Letter case counts: "form_load" is none.
bool IsFormEvent(const std::string& name);
/// False for "DRAGDROP" and "DRAGOVER", so written, alone: the compiler knows the rest.
bool IsValidTavletEvent(const std::string& eventName);
/// Whether devices raise this event of forms ("Form_Load"), letter case aside.
bool IsValidFormEvent(const std::string& name);

} // namespace fernwick
