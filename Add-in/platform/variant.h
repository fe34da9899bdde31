#pragma once
// The values that properties of the host's components have.
#include <cstdint>
#include <string>
#include <variant>

namespace fernwick {

/// Empty, Boolean, Long, Double or String. Reading one as another type converts as VB does.
using Variant = std::variant<std::monostate, bool, std::int32_t, double, std::string>;

/// Errors 13 (text that is no number) and 6 (outside the range); True is -1, Empty is 0.
std::int32_t asLong(const Variant& value);
/// Error 13 for a text that is no number; True is -1, Empty is 0.
double asDouble(const Variant& value);
/// Error 13 for a text that is neither a number nor a Boolean word; Empty is False.
bool asBoolean(const Variant& value);
/// Never fails: Empty is "".
std::string asText(const Variant& value);

} // namespace fernwick
