#pragma once
// What SARIF viewers show of a message's number.
#include "Apps/fernwick/json_output.h"
#include <set>

namespace cli {

/// A rule for each of these numbers that the catalogue has, by ascending number, with its help and the address of its
/// page.
Json sarifRules(const std::set<int>& numbers);

} // namespace cli
