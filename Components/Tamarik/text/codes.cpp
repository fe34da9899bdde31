#include "Components/Tamarik/text/codes.h"
#include "Basic/text.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/numbers/arguments.h"

namespace tamarik {

namespace {

/// Both halves of a character beyond the reach of code pages are missing there.
std::u16string withoutSurrogates(std::u16string_view text) {
    std::u16string units(text);
    for (auto& unit : units)
        if (basic::isSurrogate(unit)) unit = u'?';
    return units;
}

} // namespace

std::string toBytes(std::u16string_view text, const basic::CodePage& page) {
    if (page.number() == basic::kUtf8Page) return page.encode(basic::toUtf8(text));
    const std::string utf8 = basic::toUtf8(withoutSurrogates(text));
    if (auto bytes = page.tryEncode(utf8)) return *std::move(bytes);
    return page.encode(page.replaceMissing(utf8));
}

std::u16string fromBytes(std::string_view bytes, const basic::CodePage& page) {
    return basic::toUtf16(page.decode(bytes));
}

basic::Integer Asc(std::u16string_view text, const basic::CodePage& page) {
    requireArgument(!text.empty());
    return basic::Asc(basic::toUtf8(text.substr(0, 1)), page);
}

basic::Integer AscW(std::u16string_view text) {
    requireArgument(!text.empty());
    return static_cast<basic::Integer>(text.front());
}

basic::Byte AscB(std::string_view bytes) {
    requireArgument(!bytes.empty());
    return static_cast<basic::Byte>(bytes.front());
}

std::u16string Chr(basic::Long number, const basic::CodePage& page) { return basic::toUtf16(basic::Chr(number, page)); }

char16_t ChrW(basic::Long number) {
    requireArgument(number >= -32768 && number <= 65535);
    return static_cast<char16_t>(number);
}

char ChrB(basic::Long number) {
    if (number < 0 || number > 255) throw basic::RuntimeError(basic::kOverflow);
    return static_cast<char>(number);
}

} // namespace tamarik
