#include "Host/model/code/names.h"
#include <algorithm>

namespace host {

bool isLegalName(std::string_view name) noexcept {
    constexpr std::size_t kLongest = 255;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80); };
    if (name.empty() || name.size() > kLongest || !isLetter(name.front())) return false;
    return std::all_of(name.begin(), name.end(), [&](char c) { return isLetter(c) || isDigit(c) || c == '_'; });
}

std::string firstFreeName(std::string_view stem, const std::function<bool(const std::string&)>& isTaken) {
    for (int number = 1;; ++number)
        if (auto name = std::string(stem) + std::to_string(number); !isTaken(name)) return name;
}

} // namespace host
