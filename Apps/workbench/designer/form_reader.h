#pragma once
#include "Apps/workbench/designer/form_picture.h"

namespace workbench {

/// Reads a component that has a designer. Error 380 for a file without the description of a form. Other damage is
/// tolerated: the readable parts are drawn. `depth` counts the user controls that the component is drawn within.
FormPicture pictureOfForm(vbide::VBComponent& component, int depth = 0);

} // namespace workbench
