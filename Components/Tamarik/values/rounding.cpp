#include "Components/Tamarik/values/rounding.h"
#include "Basic/runtime_error.h"

namespace tamarik {

namespace {

constexpr double kFirstDay = -657434, kDayAfterLast = 2958466;

[[noreturn]] void overflow() { throw basic::RuntimeError(basic::kOverflow); }

} // namespace

std::int32_t toLong(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) overflow();
    return static_cast<std::int32_t>(rounded);
}

std::int32_t longOfCurrency(std::int64_t scaled) {
    std::int64_t whole = scaled / 10000;
    const std::int64_t rest = scaled % 10000, size = rest < 0 ? -rest : rest;
    if (size > 5000 || (size == 5000 && whole % 2 != 0)) whole += rest < 0 ? -1 : 1;
    if (whole != static_cast<std::int32_t>(whole)) overflow();
    return static_cast<std::int32_t>(whole);
}

std::int64_t toCurrency(double value) {
    constexpr double kBeyond = 9223372036854775808.0;
    const double scaled = std::nearbyint(value * 10000);
    if (!(scaled >= -kBeyond && scaled < kBeyond)) overflow();
    return static_cast<std::int64_t>(scaled);
}

double toSingle(double value) {
    // From half a step beyond the largest Single on, values round to infinity.
    if (!(std::fabs(value) < 0x1.FFFFFFp127)) overflow();
    return static_cast<double>(static_cast<float>(value));
}

double toDate(double days) {
    if (!(days > kFirstDay - 1 && days < kDayAfterLast)) overflow();
    return days;
}

} // namespace tamarik
