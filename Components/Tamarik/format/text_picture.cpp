#include "Components/Tamarik/format/text_picture.h"
#include "Components/Tamarik/text/letters.h"
#include <algorithm>

namespace tamarik {

namespace {

bool has(const Picture& section, char16_t code) {
    return std::any_of(section.begin(), section.end(), [&](const PictureUnit& part) { return part.is(code); });
}

bool isPlace(const PictureUnit& part) { return part.is(u'@') || part.is(u'&'); }
bool isOption(const PictureUnit& part) { return part.is(u'<') || part.is(u'>') || part.is(u'!'); }

std::u16string withCase(std::u16string_view text, const Picture& section) {
    if (has(section, u'<')) return LCase(text);
    return has(section, u'>') ? UCase(text) : std::u16string(text);
}

} // namespace

std::u16string formatText(std::u16string_view text, const std::vector<Picture>& sections) {
    const Picture& section = sections[text.empty() && sections.size() > 1 ? 1 : 0];
    const std::u16string letters = withCase(text, section);
    const auto places = static_cast<std::size_t>(std::count_if(section.begin(), section.end(), isPlace));
    const bool fromLeft = has(section, u'!');
    const std::size_t missing = fromLeft ? 0 : places - std::min(places, letters.size());
    std::size_t at = fromLeft ? 0 : letters.size() - std::min(places, letters.size()), place = 0;
    std::u16string result = letters.substr(0, at);
    for (const auto& part : section) {
        if (isOption(part)) continue;
        if (!isPlace(part))
            result += part.unit;
        else if (place++ >= missing && at < letters.size())
            result += letters[at++];
        else if (part.is(u'@'))
            result += u' ';
    }
    return result.append(letters, at);
}

} // namespace tamarik
