#include "Basic/double_byte.h"
#include "Basic/utf8.h"

namespace basic {

namespace {

constexpr bool in(unsigned value, unsigned first, unsigned last) { return value >= first && value <= last; }

bool isTrailByte(int codePage, unsigned char byte) noexcept {
    switch (codePage) {
    case 932: return in(byte, 0x40, 0xFC) && byte != 0x7F;
    case 936: return in(byte, 0x40, 0xFE) && byte != 0x7F;
    case 949: return in(byte, 0x41, 0x5A) || in(byte, 0x61, 0x7A) || in(byte, 0x81, 0xFE);
    default: return in(byte, 0x40, 0x7E) || in(byte, 0xA1, 0xFE);
    }
}

/// Katakana of half width are single bytes.
bool isNarrowKana(int codePage, unsigned char byte) noexcept { return codePage == 932 && in(byte, 0xA1, 0xDF); }

/// The standards sort characters into levels by how usual they are; this is the first level, with kana and punctuation.
bool isCommon(int codePage, unsigned char lead, unsigned char trail) noexcept {
    const unsigned pair = lead * 0x100U + trail;
    switch (codePage) {
    case 932:
        return in(pair, 0x8140, 0x81AC) || in(pair, 0x824F, 0x82F1) || in(pair, 0x8340, 0x8396) ||
               in(pair, 0x889F, 0x9872);
    case 936: return trail >= 0xA1 && (in(lead, 0xA1, 0xA3) || in(lead, 0xB0, 0xD7));
    case 949: return trail >= 0xA1 && (in(lead, 0xA1, 0xA4) || in(lead, 0xB0, 0xC8));
    default: return in(pair, 0xA140, 0xA3BF) || in(pair, 0xA440, 0xC67E);
    }
}

/// In western text an accented letter or a typographic mark is usually followed by an ASCII letter.
bool isCertain(int codePage, unsigned char lead, unsigned char trail) noexcept {
    return trail >= 0x80 || (codePage == 932 && in(lead, 0x82, 0x83));
}

} // namespace

bool isLeadByte(int codePage, unsigned char byte) noexcept {
    switch (codePage) {
    case 932: return in(byte, 0x81, 0x9F) || in(byte, 0xE0, 0xFC);
    case 936:
    case 949:
    case 950: return in(byte, 0x81, 0xFE);
    default: return false;
    }
}

void DoubleByteCount::add(std::string_view bytes) noexcept {
    for (std::size_t at = asciiRun(bytes, 0); at < bytes.size(); at += asciiRun(bytes, at)) {
        const auto lead = static_cast<unsigned char>(bytes[at]);
        const auto trail = at + 1 < bytes.size() ? static_cast<unsigned char>(bytes[at + 1]) : '\0';
        at += addPair(lead, static_cast<unsigned char>(trail));
    }
}

/// Returns the number of bytes taken.
std::size_t DoubleByteCount::addPair(unsigned char lead, unsigned char trail) noexcept {
    if (isNarrowKana(page_, lead)) return 1;
    if (!isLeadByte(page_, lead) || !isTrailByte(page_, trail)) {
        ++bad_;
        return 1;
    }
    const bool common = isCommon(page_, lead, trail);
    ++(common ? common_ : rare_);
    if (common && isCertain(page_, lead, trail)) ++certain_;
    return 2;
}

bool DoubleByteCount::isLikely(std::size_t least) const noexcept {
    return common_ >= least && common_ * 10 >= characters() * 9 && certain_ * 5 >= common_ * 2 &&
           bad_ * 100 <= characters();
}

bool DoubleByteCount::fitsBetterThan(const DoubleByteCount& other) const noexcept {
    return common_ * other.characters() > other.common_ * characters();
}

} // namespace basic
