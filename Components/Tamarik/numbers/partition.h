#pragma once
// VB's Partition.
#include "Basic/types.h"
#include <string>

namespace tamarik {

/// Returns the range of a series in which a number falls, as "lower:upper". Both sides have the width of `stop`, and one more.
/// Error 5 for a negative start, a stop that is not above it, or an interval below 1.
std::string Partition(basic::Long number, basic::Long start, basic::Long stop, basic::Long interval);

} // namespace tamarik
