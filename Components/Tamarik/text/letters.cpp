#include "Components/Tamarik/text/letters.h"
#include "Basic/like.h"
#include "Basic/tables/character_table.h"
#include <algorithm>

namespace tamarik {

namespace {

/// The other form of a unit, unless that is not a unit.
template <class Form>
char16_t formOf(char16_t unit, Form form) noexcept {
    const char32_t other = form(unit);
    return other <= 0xFFFF ? static_cast<char16_t>(other) : unit;
}

char16_t upperUnit(char16_t unit) noexcept { return formOf(unit, basic::upperCase); }
char16_t lowerUnit(char16_t unit) noexcept { return formOf(unit, basic::lowerCase); }

template <class Form>
std::u16string mapUnits(std::u16string_view text, Form form) {
    std::u16string mapped(text);
    std::transform(mapped.begin(), mapped.end(), mapped.begin(), form);
    return mapped;
}

bool endsWord(char16_t unit) { return unit == u'\0' || unit == u' ' || (unit >= u'\t' && unit <= u'\r'); }

std::u32string unitsOf(std::u16string_view text, VbCompareMethod method) {
    std::u32string units(text.begin(), text.end());
    if (method == vbTextCompare)
        for (auto& unit : units) unit = foldUnit(static_cast<char16_t>(unit));
    return units;
}

} // namespace

char16_t foldWideUnit(char16_t unit) noexcept { return formOf(unit, basic::folded); }

std::u16string fold(std::u16string_view text) { return mapUnits(text, foldUnit); }
std::u16string UCase(std::u16string_view text) { return mapUnits(text, upperUnit); }
std::u16string LCase(std::u16string_view text) { return mapUnits(text, lowerUnit); }

std::u16string properCase(std::u16string_view text) {
    return mapUnits(text, [starts = true](char16_t unit) mutable {
        const char16_t mapped = starts ? upperUnit(unit) : lowerUnit(unit);
        starts = endsWord(unit);
        return mapped;
    });
}

int compare(std::u16string_view a, std::u16string_view b, VbCompareMethod method) noexcept {
    if (method != vbTextCompare) {
        const int order = a.compare(b);
        return (order > 0) - (order < 0);
    }
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        const char16_t ofA = foldUnit(a[i]), ofB = foldUnit(b[i]);
        if (ofA != ofB) return ofA < ofB ? -1 : 1;
    }
    return (a.size() > b.size()) - (a.size() < b.size());
}

bool Like(std::u16string_view text, std::u16string_view pattern, VbCompareMethod method) {
    return basic::likeCharacters(unitsOf(text, method), unitsOf(pattern, method));
}

} // namespace tamarik
