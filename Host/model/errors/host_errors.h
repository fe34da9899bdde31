#pragma once
// Errors that several objects of the host raise.
#include "Host/files/system_error.h"
#include <fmt/format.h>
#include <string>

namespace host {

inline constexpr int kNameTaken = 32813;
inline constexpr int kInvalidFileFormat = 321;

/// Raised by all members of an object that the host has removed. The object itself stays valid.
[[noreturn]] inline void throwRemoved() {
    throw hostError(basic::kAutomationError, "The object invoked has disconnected from its clients");
}

[[noreturn]] inline void throwNameTaken(const std::string& name) {
    throw hostError(kNameTaken,
                    fmt::format("Name conflicts with existing module, project, or object library: '{}'", name));
}

[[noreturn]] inline void throwIllegalName(const std::string& name) {
    throw hostError(basic::kInvalidPropertyValue, fmt::format("'{}' is not a legal object name", name));
}

/// Returns the item at a 1-based index. Error 9 if there is none.
template <class List>
const auto& itemAt(const List& list, int index) {
    if (index < 1 || std::size_t(index) > list.size()) throw hostError(basic::kSubscriptOutOfRange);
    return list[std::size_t(index) - 1];
}

} // namespace host
