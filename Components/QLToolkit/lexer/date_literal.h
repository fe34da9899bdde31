#pragma once
// The text between the # of a date literal.
#include <optional>
#include <string_view>

namespace qltoolkit {

/// Returns the days since 30 December 1899 with the time as a fraction, or nothing if the text is not a date. Before
/// that day the fraction counts away from zero, as in VB.
/// Accepts month/day/year and year/month/day with / or -, English month names in any order with commas or blanks, and
/// hours:minutes[:seconds] with AM or PM; a date, a time, or a date and a time. Two-digit years from 30 to 99 are 19xx.
[[nodiscard]] std::optional<double> parseDateLiteral(std::string_view);

} // namespace qltoolkit
