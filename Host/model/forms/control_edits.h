#pragma once
// Adding and removing the controls of a form.
#include "Host/model/forms/designer_state.h"
#include "Host/model/forms/form_geometry.h"
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A removed control and its former position.
struct RemovedControl {
    std::shared_ptr<FormBlock> container, block;
    std::size_t place = 0;
};

/// Adds a control to a container with this scale. Error 429 for an invalid ProgID.
basic::Ref<vbide::VBControl> addControlTo(DesignerState& state, FormBlock& container, const TwipsPerUnit& scale,
                                          const std::string& progId);
/// Error 5 if the control is not on this form.
RemovedControl removeControlFrom(DesignerState& state, const basic::Ref<vbide::VBControl>& control);

struct PixelSize {
    int width = 0, height = 0;
};

// ---- for front ends -------------------------------------------------------------------------------------------------
/// As VBControls.Add, in a control that is a container; Nothing for the form itself.
basic::Ref<vbide::VBControl> addControl(const basic::Ref<vbide::VBForm>& form,
                                        const basic::Ref<vbide::VBControl>& container, const std::string& progId);
/// The size of a new control according to the description of its class; 0 by 0 if there is none.
PixelSize describedSize(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control);
/// The events of a control, of the form itself for Nothing, in alphabetical order. Empty for an unknown class.
std::vector<ClassEvent> eventsOf(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control);
/// As VBControls.Remove.
RemovedControl removeControl(const basic::Ref<vbide::VBForm>& form, const basic::Ref<vbide::VBControl>& control);
/// Restores a control at its former position. Raises no ItemAdded, so that an add-in leaves the control as it was. Error
/// 440 if its container has been removed.
void restoreControl(const basic::Ref<vbide::VBForm>& form, const RemovedControl& removed);

} // namespace host
