#pragma once
// The positions of a form and its controls in twips, independent of the units in its text.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/form_geometry.h"

namespace host {

/// Error 440 for a removed form; all zero for a form of another host.
FormExtent extentOf(const basic::Ref<vbide::VBForm>& form);

/// The units of the controls directly on a form.
TwipsPerUnit unitsOn(const basic::Ref<vbide::VBForm>& form);

/// The units of the controls directly inside a control. A picture box has its own scale, other built-in containers use
/// twips, and device controls use the units `around` them.
TwipsPerUnit unitsIn(const basic::Ref<vbide::VBControl>& container, const TwipsPerUnit& around);

} // namespace host
