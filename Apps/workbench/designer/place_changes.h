#pragma once
// The values of the properties that position a control or a form.
#include "Apps/workbench/designer/form_picture.h"
#include "Apps/workbench/properties/design_history.h"

namespace workbench {

/// In the units of the control's container. Only what differs is set.
std::vector<DesignChange> changesOfPlace(const DrawnControl& drawn, const QRectF& place);
/// The place of a new control, and its name as caption or text. A place without a size leaves the size unchanged.
std::vector<DesignChange> changesOfNew(const DrawnControl& drawn, const QRectF& place);
/// A form's size includes its frame.
std::vector<DesignChange> changesOfForm(const FormPicture& form, const QRectF& inner);

} // namespace workbench
