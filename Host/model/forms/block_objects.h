#pragma once
// The object values of a form's properties: fonts and pictures.
#include "Host/files/property_value.h"
#include "Host/model/forms/designer_state.h"
#include "Host/model/forms/property_source.h"

namespace host {

/// The members of a font property. They stand in a BeginProperty block; without one they are those of the
/// form's first font, MS Sans Serif of 8.25 points. Bold is a weight above 550, and written as 700 or 400.
basic::Ref<vbide::Properties> fontOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                     std::string property);

/// The members of a picture property, all read-only: Handle is 0 when there is no picture, or when the
/// resource file does not have it.
basic::Ref<vbide::Properties> pictureOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                        std::string property);

/// The text that a resource reference stands for; "" when the resource file does not have it.
std::string resourceText(const DesignerState& state, const ClassProperty& property, const ResourceReference& reference);

} // namespace host
