#include "Host/metafiles/utf16_text.h"
#include "Basic/utf8.h"
#include "Host/metafiles/fields.h"

namespace host {

namespace {

constexpr char32_t kHighHalf = 0xD800, kLowHalf = 0xDC00, kAfterHalves = 0xE000, kFirstPair = 0x10000;

bool isHalf(char32_t unit) { return unit >= kHighHalf && unit < kAfterHalves; }

} // namespace

std::string textOfUtf16(std::string_view bytes) {
    std::string text;
    Fields in(bytes);
    char32_t high = 0;
    for (char32_t unit = in.u16(); unit != 0; unit = in.u16()) {
        const bool isLow = unit >= kLowHalf && unit < kAfterHalves;
        if (high != 0 && !isLow) text += '?';
        if (high != 0 && isLow)
            basic::appendCharacter(text, kFirstPair + ((high - kHighHalf) << 10) + (unit - kLowHalf));
        else if (isLow)
            text += '?';
        else if (!isHalf(unit))
            basic::appendCharacter(text, unit);
        high = isHalf(unit) && !isLow ? unit : 0;
    }
    return text;
}

} // namespace host
