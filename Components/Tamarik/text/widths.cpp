#include "Components/Tamarik/text/widths.h"

namespace tamarik {

namespace {

constexpr char16_t kVoiceMark = 0xFF9E, kHalfVoiceMark = 0xFF9F, kFirstNarrow = 0xFF61;
constexpr int kWidthDistance = 0xFEE0, kKanaDistance = 0x60;

/// The full-width forms of FF61 to FF9F.
constexpr std::u16string_view kWideKana =
    u"。「」、・ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホ"
    u"マミムメモヤユヨラリルレロワン゛゜";
static_assert(kWideKana.size() == 0xFFA0 - kFirstNarrow);

/// Kana with a voice mark and without.
constexpr std::u16string_view kVoiced = u"ガギグゲゴザジズゼゾダヂヅデドバビブベボヴ",
                              kVoiceless = u"カキクケコサシスセソタチツテトハヒフヘホウ", kHalfVoiced = u"パピプペポ",
                              kHalfVoiceless = u"ハヒフヘホ";

struct Symbol {
    char16_t narrow, wide;
};
constexpr Symbol kSymbols[] = {{u' ', 0x3000}, {0xA2, 0xFFE0}, {0xA3, 0xFFE1}, {0xA5, 0xFFE5},
                               {0xA6, 0xFFE4}, {0xAC, 0xFFE2}, {0xAF, 0xFFE3}, {0x20A9, 0xFFE6}};

/// The character in `to` at the place of a character in `from`; 0 if it is not there.
char16_t exchange(char16_t unit, std::u16string_view from, std::u16string_view to) {
    const auto found = from.find(unit);
    return found == from.npos ? u'\0' : to[found];
}

char16_t wideOf(char16_t unit) {
    for (const auto& symbol : kSymbols)
        if (symbol.narrow == unit) return symbol.wide;
    if (unit > u' ' && unit < 0x7F) return static_cast<char16_t>(unit + kWidthDistance);
    if (unit >= kFirstNarrow && unit <= kHalfVoiceMark) return kWideKana[unit - kFirstNarrow];
    return unit;
}

/// The one character of a full-width kana and a half-width voice mark; 0 if there is none.
char16_t joined(char16_t kana, char16_t mark) {
    if (mark == kVoiceMark) return exchange(kana, kVoiceless, kVoiced);
    return mark == kHalfVoiceMark ? exchange(kana, kHalfVoiceless, kHalfVoiced) : u'\0';
}

char16_t narrowOf(char16_t unit) {
    for (const auto& symbol : kSymbols)
        if (symbol.wide == unit) return symbol.narrow;
    if (unit > 0xFF00 && unit < 0xFF5F) return static_cast<char16_t>(unit - kWidthDistance);
    const auto kana = kWideKana.find(unit);
    return kana == kWideKana.npos ? unit : static_cast<char16_t>(kFirstNarrow + kana);
}

/// Moves the kana from `first` to `last`, and the two iteration marks of the same distance.
std::u16string moveKana(std::u16string_view text, char16_t first, int distance) {
    std::u16string moved(text);
    for (auto& unit : moved) {
        const int place = unit - first;
        const bool isKana =
            (place >= 0 && place <= 0x3096 - 0x3041) || place == 0x309D - 0x3041 || place == 0x309E - 0x3041;
        if (isKana) unit = static_cast<char16_t>(unit + distance);
    }
    return moved;
}

} // namespace

std::u16string toWide(std::u16string_view text) {
    std::u16string wide;
    wide.reserve(text.size());
    for (const char16_t unit : text) {
        const char16_t whole = wide.empty() ? u'\0' : joined(wide.back(), unit);
        if (whole)
            wide.back() = whole;
        else
            wide += wideOf(unit);
    }
    return wide;
}

std::u16string toNarrow(std::u16string_view text) {
    std::u16string narrow;
    narrow.reserve(text.size());
    for (const char16_t unit : text) {
        if (const char16_t voiceless = exchange(unit, kVoiced, kVoiceless))
            (narrow += narrowOf(voiceless)) += kVoiceMark;
        else if (const char16_t plain = exchange(unit, kHalfVoiced, kHalfVoiceless))
            (narrow += narrowOf(plain)) += kHalfVoiceMark;
        else
            narrow += narrowOf(unit);
    }
    return narrow;
}

std::u16string toKatakana(std::u16string_view text) { return moveKana(text, 0x3041, kKanaDistance); }
std::u16string toHiragana(std::u16string_view text) { return moveKana(text, 0x30A1, -kKanaDistance); }

} // namespace tamarik
