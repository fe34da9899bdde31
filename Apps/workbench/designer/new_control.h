#pragma once
// What a control gets when the user adds it to a form.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/designer/form_picture.h"

namespace workbench {

/// Returns the usual size of a control of this kind in logical pixels: that of its description, or of the language. It
/// grows with the font and fits into its container, of which `room` is left.
QSizeF usualSize(const DrawnControl& drawn, const vbide::Ref<vbide::VBForm>& form, const QSizeF& room);

/// Gives a control the font of its form. Ignores a control without a font.
void setFontOfForm(const vbide::Ref<vbide::Properties>& form, const vbide::Ref<vbide::Properties>& control);

} // namespace workbench
