#pragma once
// The places of digits in one section of a number's format.
#include "Basic/types.h"
#include "Components/Tamarik/format/picture.h"
#include <string>
#include <vector>

namespace tamarik {

struct NumberPlaces {
    struct Part {
        enum Kind { Literal, Whole, Point, Decimal, Exponent } kind;
        char16_t unit; ///< of a literal, and the exponent's letter
    };

    std::vector<Part> parts;
    std::string whole, decimals; ///< "0" or "#" for each place
    bool isGrouped = false;
    basic::Long powersOfTen = 0; ///< by which percent signs and scaling commas multiply
    bool hasExponent = false, showsPlus = false;
    std::size_t exponentDigits = 0; ///< at least
};

NumberPlaces placesOf(const Picture& section);

} // namespace tamarik
