#include "Components/Tamarik/format/digits.h"
#include <cstddef>

namespace tamarik {

namespace {

/// Adds 1 to the last digit. An overflow of all digits adds one in front.
void increase(std::string& digits) {
    std::size_t at = digits.size();
    while (at > 0 && digits[at - 1] == '9') digits[--at] = '0';
    if (at > 0)
        ++digits[at - 1];
    else
        digits.insert(0, 1, '1');
}

} // namespace

bool Digits::isZero() const { return whole.empty() && decimals.find_first_not_of('0') == decimals.npos; }

Digits digitsOf(const basic::Decimal& number, std::size_t decimals) {
    // The number of digits before the point plus the decimals: those that are kept.
    const auto wholeDigits = static_cast<std::ptrdiff_t>(number.digits.size()) + number.exponent;
    const std::ptrdiff_t kept = wholeDigits + static_cast<std::ptrdiff_t>(decimals);
    std::string digits = number.digits.substr(0, kept > 0 ? static_cast<std::size_t>(kept) : 0);
    if (kept > 0) digits.resize(static_cast<std::size_t>(kept), '0');
    const bool cut = kept >= 0 && static_cast<std::size_t>(kept) < number.digits.size();
    if (cut && number.digits[static_cast<std::size_t>(kept)] >= '5') increase(digits);
    if (digits.size() < decimals) digits.insert(0, decimals - digits.size(), '0');
    Digits result{digits.substr(0, digits.size() - decimals), digits.substr(digits.size() - decimals)};
    result.whole.erase(0, result.whole.find_first_not_of('0'));
    return result;
}

std::string grouped(const std::string& whole) {
    constexpr std::size_t kGroup = 3;
    std::string text = whole;
    for (std::size_t at = text.size(); at > kGroup;) text.insert(at -= kGroup, 1, ',');
    return text;
}

} // namespace tamarik
