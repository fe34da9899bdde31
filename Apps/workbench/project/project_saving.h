#pragma once
// Saving with the user's help: names for what has none, and the question before something is lost.
#include "Host/model/host.h"
#include <QWidget>
#include <vector>

namespace workbench {

using ProjectRef = vbide::Ref<vbide::VBProject>;
using ComponentRef = vbide::Ref<vbide::VBComponent>;

/// Saves the project and its components as the host does; what was never saved gets a name from the user. False when
/// the user cancelled. Errors as those of SaveAs.
bool saveWithNames(host::Host& host, const ProjectRef& project, QWidget* window);
bool saveUnderNewName(const ProjectRef& project, QWidget* window);

/// The same of one component.
bool saveWithName(const ComponentRef& component, QWidget* window);
bool saveUnderNewName(const ComponentRef& component, QWidget* window);

/// Whether these projects may be closed. Asks once for each that has changes; when every question has its answer, saves
/// where the user said so and takes the marks off the rest, so that nobody saves it at the closing. False when the
/// user cancelled: then all are as they were, but for what was saved.
bool mayBeClosed(host::Host& host, const std::vector<ProjectRef>& projects, QWidget* window);
/// Whether the component may leave its project, with the same question.
bool mayBeRemoved(const ComponentRef& component, QWidget* window);

/// Whether something of it is not on disk.
bool isUnsaved(const ProjectRef& project);

} // namespace workbench
