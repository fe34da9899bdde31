#pragma once
// The results of a check as bytes.
#include "Components/QLToolkit/check.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qltoolkit {

using CheckResults = std::vector<CheckResult>;

std::string bytesOf(const CheckResults& results);

/// Nothing for bytes that bytesOf did not write.
std::optional<CheckResults> resultsOf(std::string_view bytes);

} // namespace qltoolkit
