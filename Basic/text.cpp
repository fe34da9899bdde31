#include "Basic/text.h"
#include "Basic/character_count.h"
#include "Basic/runtime_error.h"
#include "Basic/tables/character_table.h"
#include "Basic/utf8.h"

namespace basic {

namespace {

std::size_t checkedLength(Long length) {
    if (length < 0) throw RuntimeError(kInvalidProcedureCall);
    return static_cast<std::size_t>(length);
}

/// The first character of a text.
std::string_view firstCharacter(std::string_view text) {
    if (text.empty()) throw RuntimeError(kInvalidProcedureCall);
    std::size_t end = 0;
    nextCharacter(text, end);
    return text.substr(0, end);
}

template <class Map>
std::string mapCharacters(std::string_view text, char firstAscii, char lastAscii, Map map) {
    std::string mapped;
    mapped.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const char byte = text[at];
        if (static_cast<unsigned char>(byte) < 0x80) {
            mapped += byte >= firstAscii && byte <= lastAscii ? static_cast<char>(byte ^ 0x20) : byte;
            ++at;
            continue;
        }
        const char32_t character = nextCharacter(text, at);
        if (character == kNoCharacter)
            mapped += byte;
        else
            appendCharacter(mapped, map(character));
    }
    return mapped;
}

} // namespace

Long Len(std::string_view text) noexcept { return static_cast<Long>(countCharacters(text)); }

std::string Left(std::string_view text, Long length) {
    return std::string(text.substr(0, characterOffset(text, checkedLength(length))));
}

std::string Right(std::string_view text, Long length) {
    const std::size_t wanted = checkedLength(length);
    if (wanted >= text.size()) return std::string(text);
    const std::size_t count = countCharacters(text);
    return std::string(wanted >= count ? text : text.substr(characterOffset(text, count - wanted)));
}

std::string Mid(std::string_view text, Long start, Long length) {
    if (start < 1) throw RuntimeError(kInvalidProcedureCall);
    const std::string_view rest = text.substr(characterOffset(text, static_cast<std::size_t>(start - 1)));
    return Left(rest, length);
}

std::string LTrim(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return std::string(text);
}

std::string RTrim(std::string_view text) { return std::string(text.substr(0, text.find_last_not_of(' ') + 1)); }

std::string Trim(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return RTrim(text);
}

std::string UCase(std::string_view text) { return mapCharacters(text, 'a', 'z', upperCase); }

std::string LCase(std::string_view text) { return mapCharacters(text, 'A', 'Z', lowerCase); }

std::string Space(Long count) { return std::string(checkedLength(count), ' '); }

std::string String(Long count, std::string_view text) {
    const std::size_t times = checkedLength(count);
    const std::string_view character = firstCharacter(text);
    if (character.size() == 1) return std::string(times, character[0]);
    std::string result;
    result.reserve(times * character.size());
    for (std::size_t i = 0; i < times; ++i) result += character;
    return result;
}

std::string StrReverse(std::string_view text) {
    std::string reversed(text.size(), '\0');
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t first = at;
        nextCharacter(text, at);
        text.copy(reversed.data() + (text.size() - at), at - first, first);
    }
    return reversed;
}

Integer Asc(std::string_view text, const CodePage& page) {
    const auto bytes = page.tryEncode(firstCharacter(text));
    if (!bytes) return '?';
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>((*bytes)[i]); };
    return static_cast<Integer>(bytes->size() == 2 ? byte(0) << 8 | byte(1) : byte(0));
}

std::string Chr(Long number, const CodePage& page) {
    const int pageNumber = page.number();
    const bool twoBytes = pageNumber == 932 || pageNumber == 936 || pageNumber == 949 || pageNumber == 950;
    if (number < (twoBytes ? -32768 : 0) || number > (twoBytes ? 65535 : 255))
        throw RuntimeError(kInvalidProcedureCall);
    std::string bytes;
    if (number < 0 || number > 255) bytes += static_cast<char>((number >> 8) & 0xFF);
    bytes += static_cast<char>(number & 0xFF);
    return page.decode(bytes);
}

Integer AscW(std::string_view text) {
    std::size_t at = 0;
    const char32_t character = nextCharacter(firstCharacter(text), at);
    if (character == kNoCharacter) return static_cast<Integer>(static_cast<unsigned char>(text[0]));
    return static_cast<Integer>(character <= 0xFFFF ? character : 0xD7C0 + (character >> 10));
}

std::string ChrW(Long number) {
    const auto character = static_cast<char32_t>(number & 0xFFFF);
    if (number < -32768 || number > 65535 || (character >= 0xD800 && character <= 0xDFFF))
        throw RuntimeError(kInvalidProcedureCall);
    std::string text;
    appendCharacter(text, character);
    return text;
}

} // namespace basic
