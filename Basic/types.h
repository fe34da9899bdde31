#pragma once
// VB's numeric types.
#include <cstdint>
#include <limits>

namespace basic {

using Byte = std::uint8_t;
using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;

/// VB's Currency: a number of ten-thousandths; `scaled` is 15000 for 1.5.
struct Currency {
    std::int64_t scaled = 0;
    friend bool operator==(Currency, Currency) = default;
};

/// VB's Date: whole days since December 30, 1899; the fraction, counted away from zero, is the time of day.
struct Date {
    double days = 0;
    friend bool operator==(Date, Date) = default;
};

} // namespace basic
