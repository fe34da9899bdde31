#pragma once
// User-defined formats of numbers.
#include "Basic/decimal.h"
#include "Components/Tamarik/format/picture.h"
#include <string>
#include <vector>

namespace tamarik {

/// Formats a number by the section for its sign; a section that is missing or empty is replaced by the first one.
std::u16string formatNumber(const basic::Decimal& number, const std::vector<Picture>& sections);

} // namespace tamarik
