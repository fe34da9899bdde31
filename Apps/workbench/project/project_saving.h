#pragma once
// Saving with questions: for missing names, and before changes are lost.
#include "Apps/workbench/base/component_project.h"
#include "Host/model/host.h"
#include <QWidget>
#include <vector>

namespace workbench {

using ProjectRef = vbide::Ref<vbide::VBProject>;
using ComponentRef = vbide::Ref<vbide::VBComponent>;

/// Saves the project and its components and asks for missing file names. False if the user cancels. Errors as those of
/// SaveAs.
bool saveWithNames(host::Host& host, const ProjectRef& project, QWidget* window);
bool saveUnderNewName(const ProjectRef& project, QWidget* window);

/// The same for one component.
bool saveWithName(const ComponentRef& component, QWidget* window);
bool saveUnderNewName(const ComponentRef& component, QWidget* window);

/// Whether these projects may be closed. Asks once for each project with changes. After the last answer, saves what the
/// user wants saved and clears the dirty marks of the rest, so that closing does not save them. False if the user
/// cancels; nothing has changed then, except for what was already saved.
bool mayBeClosed(host::Host& host, const std::vector<ProjectRef>& projects, QWidget* window);
/// Whether the component may be removed from its project, after the same question.
bool mayBeRemoved(const ComponentRef& component, QWidget* window);

/// Clears all dirty marks, so that closing the project does not save its changes.
void forgetChanges(const ProjectRef& project);

/// Whether the project has unsaved changes.
bool isUnsaved(const ProjectRef& project);

} // namespace workbench
