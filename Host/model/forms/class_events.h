#pragma once
// The events of the language's own classes and of its common controls.
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// An event, with its parameters as a procedure declares them: "Cancel As Integer, UnloadMode As Integer".
struct ClassEvent {
    std::string name, parameters;
    /// What a handler is, and what follows its parameters. A member of an interface may be a "Function" with " As Long".
    std::string procedure = "Sub", result = {};
};

/// Returns the events of a class ("VB.TextBox", "VB.Form", "VB.Class", "MSComctlLib.TreeView") in alphabetical order.
/// Ignores case. Empty for a class that is not built in.
std::vector<ClassEvent> languageEvents(std::string_view className);

/// The event that the language's designer opens on a double click; "" for a class without events.
std::string defaultEventOf(std::string_view className);

} // namespace host
