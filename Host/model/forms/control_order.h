#pragma once
// Which controls of a form cover which: the first in the text is in front.
#include "Add-in/platform/host_project.h"
#include <vector>

namespace host {

/// Brings controls in front of the others of their container, or sends them behind. Menus stay where they are. Only the
/// lines of these controls move.
void bringToFront(const basic::Ref<vbide::VBForm>& form, const std::vector<basic::Ref<vbide::VBControl>>& controls);
void sendToBack(const basic::Ref<vbide::VBForm>& form, const std::vector<basic::Ref<vbide::VBControl>>& controls);

} // namespace host
