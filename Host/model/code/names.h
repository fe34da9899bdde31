#pragma once
// Names of components, controls and projects.
#include <functional>
#include <string>
#include <string_view>

namespace host {

/// True for names that Visual Basic accepts for components and controls.
bool isLegalName(std::string_view name) noexcept;

/// The stem with the lowest number, from 1, that is not taken.
std::string firstFreeName(std::string_view stem, const std::function<bool(const std::string&)>& isTaken);

} // namespace host
