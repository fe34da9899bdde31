#pragma once
// Values of component properties.
#include <cstdint>
#include <string>
#include <variant>

namespace fernwick {

/// Empty, Boolean, Long, Double or String. Reading one as another type converts as VB does.
using Variant = std::variant<std::monostate, bool, std::int32_t, double, std::string>;

/// Errors 13 (text that is not a number) and 6 (out of range); True is -1, Empty is 0.
std::int32_t asLong(const Variant& value);
/// Error 13 for a text that is not a number; True is -1, Empty is 0.
double asDouble(const Variant& value);
/// Error 13 for a text that is neither a number nor a Boolean word; Empty is False.
bool asBoolean(const Variant& value);
/// Never fails: Empty is "".
std::string asText(const Variant& value);

} // namespace fernwick
