#pragma once
// What SARIF viewers show of a message's number.
#include "Apps/fernwick/json_output.h"
#include "Apps/fernwick/report.h"

namespace cli {

/// A rule for each number of these messages that the catalogue has, by ascending number, with its help and the address
/// of its page.
Json sarifRules(const std::vector<Message>& messages);

} // namespace cli
