#include "Basic/elementary/real_digits.h"
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace basic {

namespace {

/// The most digits that a Double is shown with, and what surrounds them.
constexpr std::size_t kMostCharacters = 40;

} // namespace

#ifdef __cpp_lib_to_chars

std::string scientificText(double number, int significant) {
    char buffer[kMostCharacters];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::scientific, significant - 1).ptr;
    return {buffer, end};
}

std::string shortestText(double number) {
    char buffer[kMostCharacters];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

bool readReal(const std::string& text, double& value) {
    return std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc();
}

#else

// The C libraries of such machines round correctly too, and have no locale but "C".

std::string scientificText(double number, int significant) {
    char buffer[kMostCharacters];
    std::snprintf(buffer, sizeof buffer, "%.*e", significant - 1, number);
    return buffer;
}

std::string shortestText(double number) {
    constexpr int kFewest = 15, kMost = 17;
    char buffer[kMostCharacters];
    for (int digits = kFewest; digits <= kMost; ++digits) {
        std::snprintf(buffer, sizeof buffer, "%.*g", digits, number);
        if (std::strtod(buffer, nullptr) == number) break;
    }
    return buffer;
}

bool readReal(const std::string& text, double& value) {
    const double read = std::strtod(text.c_str(), nullptr);
    if (read == 0 || !std::isfinite(read)) return false;
    value = read;
    return true;
}

#endif

} // namespace basic
