#pragma once
#include "Apps/workbench/designer/form_picture.h"

namespace workbench {

/// Reads a component that has a designer. Error 380 for a file without the description of a form. Other damage is
/// tolerated: the readable parts are drawn.
FormPicture pictureOfForm(vbide::VBComponent& component);

} // namespace workbench
