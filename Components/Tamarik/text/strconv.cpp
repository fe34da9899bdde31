#include "Components/Tamarik/text/strconv.h"
#include "Components/Tamarik/numbers/arguments.h"
#include "Components/Tamarik/text/codes.h"
#include "Components/Tamarik/text/letters.h"
#include "Components/Tamarik/text/widths.h"

namespace tamarik {

namespace {

constexpr int kJapanesePage = 932;

void requireConversion(basic::Long conversion, const basic::CodePage& page) {
    const auto both = [&](basic::Long a, basic::Long b) { return (conversion & a) && (conversion & b); };
    requireArgument(conversion >= 0 && conversion < 256);
    requireArgument(!both(vbWide, vbNarrow) && !both(vbKatakana, vbHiragana) && !both(vbUnicode, vbFromUnicode));
    requireArgument(!(conversion & (vbWide | vbNarrow)) || page.isDoubleByte());
    requireArgument(!(conversion & (vbKatakana | vbHiragana)) || page.number() == kJapanesePage);
}

std::u16string withCase(std::u16string text, basic::Long conversion) {
    switch (conversion & vbProperCase) {
    case vbUpperCase: return UCase(text);
    case vbLowerCase: return LCase(text);
    case vbProperCase: return properCase(text);
    default: return text;
    }
}

std::u16string withForms(std::u16string text, basic::Long conversion) {
    if (conversion & vbKatakana) text = toKatakana(text);
    if (conversion & vbHiragana) text = toHiragana(text);
    if (conversion & vbWide) text = toWide(text);
    if (conversion & vbNarrow) text = toNarrow(text);
    return text;
}

} // namespace

std::string StrConv(std::string_view bytes, basic::Long conversion, const basic::CodePage& page) {
    requireConversion(conversion, page);
    const bool decodes = conversion & vbUnicode, encodes = conversion & vbFromUnicode;
    const auto text = withForms(withCase(decodes ? fromBytes(bytes, page) : unitsOf(bytes), conversion), conversion);
    if (encodes) return toBytes(text, page);
    std::string converted = bytesOf(text);
    if (!decodes && bytes.size() % 2 == 1) converted += bytes.back();
    return converted;
}

std::string bytesOf(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const char16_t unit : text) (bytes += static_cast<char>(unit & 0xFF)) += static_cast<char>(unit >> 8);
    return bytes;
}

std::u16string unitsOf(std::string_view bytes) {
    std::u16string text(bytes.size() / 2, u'\0');
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    for (std::size_t i = 0; i < text.size(); ++i) text[i] = static_cast<char16_t>(byte(2 * i) | byte(2 * i + 1) << 8);
    return text;
}

} // namespace tamarik
