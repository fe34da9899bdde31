#pragma once
// The digits of a number for a format.
#include "Basic/decimal.h"
#include <string>

namespace tamarik {

struct Digits {
    std::string whole;    ///< without zeros in front, so empty below 1
    std::string decimals; ///< as many as were asked for

    bool isZero() const;
};

/// The digits of a number's size, rounded to `decimals`, halves away from zero as Format does.
Digits digitsOf(const basic::Decimal& number, std::size_t decimals);

/// Puts "," between groups of three digits.
std::string grouped(const std::string& whole);

} // namespace tamarik
