#pragma once
// The hidden attributes of members, which are stored by the member's name.
#include <string>
#include <string_view>

namespace host {

/// Returns the procedure or variable that a line declares; "" if it declares none, or several variables.
std::string memberOfLine(std::string_view line);

} // namespace host
