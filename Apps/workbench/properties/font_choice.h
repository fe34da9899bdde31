#pragma once
#include "Apps/workbench/properties/design_history.h"
#include <QWidget>

namespace workbench {

/// Asks for a font, starting with the one that these members of a property "Font" describe. Returns the members that the
/// user changed, so that several objects keep what differs otherwise. Empty if the user cancels.
std::vector<DesignChange> askForFont(const vbide::Ref<vbide::Properties>& members, QWidget* parent);

} // namespace workbench
