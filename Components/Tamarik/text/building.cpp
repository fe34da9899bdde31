#include "Components/Tamarik/text/building.h"
#include "Components/Tamarik/numbers/arguments.h"
#include "Components/Tamarik/text/codes.h"
#include <algorithm>

namespace tamarik {

namespace {

template <class Unit>
void replaceUnits(std::span<Unit> target, basic::Long start, std::optional<basic::Long> length,
                  std::basic_string_view<Unit> by) {
    requireArgument(start >= 1 && static_cast<std::size_t>(start) <= target.size());
    const auto rest = target.subspan(static_cast<std::size_t>(start - 1));
    const std::size_t most = length ? requireCount(*length) : by.size();
    std::copy_n(by.begin(), std::min({most, by.size(), rest.size()}), rest.begin());
}

} // namespace

std::u16string Space(basic::Long count) { return std::u16string(requireCount(count), u' '); }

std::u16string String(basic::Long count, std::u16string_view text) {
    const std::size_t times = requireCount(count);
    requireArgument(!text.empty());
    return std::u16string(times, text.front());
}

std::u16string String(basic::Long count, basic::Long code) { return String(count, Chr(code & 0xFF)); }

std::u16string StrReverse(std::u16string_view text) { return {text.rbegin(), text.rend()}; }

std::u16string Join(std::span<const std::u16string> pieces, std::u16string_view delimiter) {
    std::u16string joined;
    for (const auto& piece : pieces) {
        if (&piece != pieces.data()) joined += delimiter;
        joined += piece;
    }
    return joined;
}

void replaceMid(std::span<char16_t> target, basic::Long start, std::optional<basic::Long> length,
                std::u16string_view by) {
    replaceUnits(target, start, length, by);
}

void replaceMid(std::span<char> target, basic::Long start, std::optional<basic::Long> length, std::string_view by) {
    replaceUnits(target, start, length, by);
}

void fillLeft(std::span<char16_t> target, std::u16string_view by) {
    const auto end = std::copy_n(by.begin(), std::min(by.size(), target.size()), target.begin());
    std::fill(end, target.end(), u' ');
}

void fillRight(std::span<char16_t> target, std::u16string_view by) {
    const std::size_t count = std::min(by.size(), target.size());
    std::fill_n(target.begin(), target.size() - count, u' ');
    std::copy_n(by.begin(), count, target.end() - static_cast<std::ptrdiff_t>(count));
}

} // namespace tamarik
