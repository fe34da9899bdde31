#pragma once
// Commands on components. Most of them do nothing for a null component.
#include "Apps/workbench/project/project_saving.h"

namespace workbench {

/// Adds a component to the active project and shows it.
void addComponent(host::Host& host, vbide::vbext_ComponentType type);
/// Adds a file that the user chooses to the active project.
void addFile(host::Host& host, QWidget* window);
/// Saves the component, or the active project if it is null. Asks for a name if there is none.
void saveFile(host::Host& host, const ComponentRef& component, QWidget* window);
void saveFileAs(const ComponentRef& component, QWidget* window);
/// Asks whether to save its changes first.
void removeComponent(const ComponentRef& component, QWidget* window);
/// Makes it the start-up object of its project.
void setAsStartUp(const ComponentRef& component);

} // namespace workbench
