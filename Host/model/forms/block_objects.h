#pragma once
// The object values of properties: fonts, pictures and groups.
#include "Host/files/property_value.h"
#include "Host/model/forms/designer_state.h"
#include "Host/model/forms/property_source.h"

namespace host {

/// Returns the members of a font property, from its BeginProperty block. Without a block the font is MS Sans Serif,
/// 8.25 points. Bold is a weight above 550, and is written as 700 or 400.
basic::Ref<vbide::Properties> fontOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                     std::string property);

/// Returns the members of a picture property, all read-only. Handle is 0 if there is no picture or the resource file
/// does not have it.
basic::Ref<vbide::Properties> pictureOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                        std::string property);

/// Returns the values in a BeginProperty block, such as the columns of a list, all read-only. Members that are blocks
/// themselves are objects.
basic::Ref<vbide::Properties> groupOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                      const std::shared_ptr<FormBlock>& group);

/// Returns the text that a resource reference refers to; "" if the resource file does not have it.
std::string resourceText(const DesignerState& state, const ClassProperty& property, const ResourceReference& reference);

} // namespace host
