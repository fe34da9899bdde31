#pragma once
// Errors that several objects of the host raise.
#include "Host/files/system_error.h"
#include <fmt/format.h>
#include <string>

namespace host {

/// What the host has removed stays a valid object whose members raise this error.
[[noreturn]] inline void throwRemoved() {
    throw hostError(basic::kAutomationError, "The object invoked has disconnected from its clients");
}

inline constexpr int kNameTaken = 32813;
inline constexpr int kInvalidFileFormat = 321;

[[noreturn]] inline void throwNameTaken(const std::string& name) {
    throw hostError(kNameTaken,
                    fmt::format("Name conflicts with existing module, project, or object library: '{}'", name));
}

} // namespace host
