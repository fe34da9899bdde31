#include "Components/QLToolkit/parser/conditional_constants.h"
#include <algorithm>
#include <charconv>

namespace qltoolkit {

namespace {

std::string_view trimmed(std::string_view s) {
    const auto begin = s.find_first_not_of(" \t");
    if (begin == std::string_view::npos) return {};
    return s.substr(begin, s.find_last_not_of(" \t") - begin + 1);
}

} // namespace

ConditionalConstants parseConditionalConstants(std::string_view text) {
    ConditionalConstants constants;
    while (!text.empty()) {
        const auto colon = std::min(text.find(':'), text.size());
        const auto entry = text.substr(0, colon);
        text.remove_prefix(std::min(colon + 1, text.size()));
        const auto equals = entry.find('=');
        if (equals == std::string_view::npos) continue;
        const auto name = trimmed(entry.substr(0, equals)), number = trimmed(entry.substr(equals + 1));
        long value = 0;
        const auto end = number.data() + number.size();
        const auto result = std::from_chars(number.data(), end, value);
        if (!name.empty() && result.ec == std::errc{} && result.ptr == end) constants.emplace_back(name, value);
    }
    return constants;
}

} // namespace qltoolkit
