#pragma once
// Where a form and the controls on it stand, in twips, whatever units the form's text uses.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/form_geometry.h"

namespace host {

/// Error 440 for a form that is gone; all zero for a form of another host.
FormExtent extentOf(const basic::Ref<vbide::VBForm>& form);

/// The units in which the controls directly on a form are placed.
TwipsPerUnit unitsOn(const basic::Ref<vbide::VBForm>& form);

/// The units in which the controls directly inside a control are placed: a picture box has a scale of its own, other
/// containers of the language place in twips, and what lies in a device control has the units `around` it.
TwipsPerUnit unitsIn(const basic::Ref<vbide::VBControl>& container, const TwipsPerUnit& around);

} // namespace host
