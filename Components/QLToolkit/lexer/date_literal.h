#pragma once
// The text between the # of a date literal.
#include <optional>
#include <string_view>

namespace qltoolkit {

/// Days since 30 December 1899, the time as a fraction; before that day the fraction counts away from zero, as VB has it.
/// Understood: month/day/year and year/month/day with / or -, English month names in any order with commas or blanks,
/// hours:minutes[:seconds] with AM or PM, each part alone or the date first. Years of two digits: 30 to 99 are 19xx.
/// Nothing for a text that is no date.
[[nodiscard]] std::optional<double> parseDateLiteral(std::string_view);

} // namespace qltoolkit
