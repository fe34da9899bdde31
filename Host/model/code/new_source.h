#pragma once
// What the IDE makes of a new, empty component.
#include "Add-in/platform/host_project.h"
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// What the IDE calls a new component of a type, before its number; nothing for a type that it cannot make.
std::optional<std::string_view> newNameOf(vbide::vbext_ComponentType type) noexcept;

/// The text of a new component. `type` is one that has a newNameOf.
std::string newSource(vbide::vbext_ComponentType type, const std::string& name);

/// The text of a new project.
std::string newProjectText(const std::string& name);

} // namespace host
