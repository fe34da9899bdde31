#pragma once
// The objects whose events a component's code can handle.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/class_events.h"
#include <string>
#include <vector>

namespace workbench {

/// What an object is to the code that handles its events.
enum class EventSource {
    Component, ///< the component itself
    Control,
    Variable, ///< declared WithEvents
    Interface ///< named by Implements; its members take the place of events
};

struct EventObject {
    std::string name; ///< the part of a handler's name before "_"
    std::string className;
    vbide::Ref<vbide::VBControl> control; ///< Nothing for other sources
    /// The handlers of a control array have the index as their first parameter.
    bool isArray = false;
    EventSource source = EventSource::Component;
};

/// The component itself, its controls, its variables with events and the interfaces that it implements, in alphabetical
/// order; a control array once.
std::vector<EventObject> eventObjects(vbide::VBComponent& component);
/// The object of a control, or of the component itself for Nothing. No name for a component without events of its own.
EventObject eventObjectOf(const vbide::VBComponent& component, const vbide::Ref<vbide::VBControl>& control);

/// In alphabetical order, with the parameters that a handler declares; the members of an interface in the order of its
/// code. Empty for an unknown class.
std::vector<host::ClassEvent> eventsOf(vbide::VBComponent& component, const EventObject& object);
/// The event that a double click opens; an empty name for an object without events.
host::ClassEvent defaultEventOf(vbide::VBComponent& component, const EventObject& object);

} // namespace workbench
