#include "Components/Tamarik/numbers/partition.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <algorithm>
#include <cstdint>
#include <optional>

namespace tamarik {

namespace {

struct Range {
    std::optional<std::int64_t> lower, upper;
};

Range rangeOf(std::int64_t number, std::int64_t start, std::int64_t stop, std::int64_t interval) {
    if (interval == 1) return {number, number};
    if (number < start) return {{}, start - 1};
    if (number > stop) return {stop + 1, {}};
    const std::int64_t lower = start + (number - start) / interval * interval;
    return {lower, std::min(lower + interval - 1, stop)};
}

std::string padded(std::optional<std::int64_t> number, std::size_t width) {
    const std::string digits = number ? std::to_string(*number) : "";
    return std::string(width - std::min(width, digits.size()), ' ') + digits;
}

} // namespace

std::string Partition(basic::Long number, basic::Long start, basic::Long stop, basic::Long interval) {
    requireArgument(start >= 0 && stop > start && interval >= 1);
    const auto [lower, upper] = rangeOf(number, start, stop, interval);
    const std::size_t width = std::to_string(stop).size() + 1;
    return padded(lower, width) + ':' + padded(upper, width);
}

} // namespace tamarik
