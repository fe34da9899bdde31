#pragma once
// Saving with the user's help: names for what has none, and the question before something is lost.
#include "Host/model/host.h"
#include <QWidget>

namespace workbench {

/// Saves the project and its components as the host does; what was never saved gets a name from the user. False when
/// the user cancelled. Errors as those of SaveAs.
bool saveWithNames(host::Host& host, const vbide::Ref<vbide::VBProject>& project, QWidget* window);

/// Whether all of them may be closed: asks about changes, and saves them where the user says so. What the user gives
/// up counts as saved from then on, so that nobody saves it at the closing.
bool mayBeClosed(host::Host& host, const std::vector<vbide::Ref<vbide::VBProject>>& projects, QWidget* window);

/// Whether something of it is not on disk.
bool isUnsaved(const vbide::Ref<vbide::VBProject>& project);

} // namespace workbench
