#pragma once
// Opens the handler of an event.
#include "Apps/workbench/events/object_events.h"

namespace workbench {

/// Returns the line (from 1) of the head of an event's handler, 0 if there is none.
int handlerLine(const vbide::CodeModule& module, const EventObject& object, const host::ClassEvent& event);

/// Shows the code of a component at an event's handler. Adds an empty one after all other code if there is none.
void openHandler(vbide::VBComponent& component, const EventObject& object, const host::ClassEvent& event);
/// As above, for the default event of a control, or of the component itself for Nothing. For a class without events,
/// only shows the code.
void openHandler(vbide::VBComponent& component, const vbide::Ref<vbide::VBControl>& control);

} // namespace workbench
