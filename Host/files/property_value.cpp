#include "Host/files/property_value.h"
#include "Basic/guid.h"
#include <charconv>
#include <cmath>
#include <fmt/core.h>

namespace host {
namespace {

constexpr auto kNowhere = std::string_view::npos;

/// The position after the closing quote of the string that begins at `quote`, or npos.
std::size_t endOfString(std::string_view text, std::size_t quote) {
    for (std::size_t at = quote + 1;;) {
        at = text.find('"', at);
        if (at == kNowhere) return at;
        if (at + 1 >= text.size() || text[at + 1] != '"') return at + 1;
        at += 2;
    }
}

std::string undoubled(std::string_view inner) {
    std::string out;
    out.reserve(inner.size());
    for (std::size_t i = 0; i < inner.size(); ++i) {
        out += inner[i];
        if (inner[i] == '"' && i + 1 < inner.size() && inner[i + 1] == '"') ++i;
    }
    return out;
}

bool isHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'); }

/// Reads the hexadecimal digits at the start of `text`. Returns false if there are none or they exceed T.
template <class T>
bool readHex(std::string_view text, T& value, std::size_t& length) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    length = std::size_t(end - text.data());
    return error == std::errc{} && length > 0 && isHexDigit(text[0]);
}

bool parseStringOrResource(PropertyValue& v, std::string_view literal) {
    const bool dollar = literal[0] == '$';
    const std::size_t quote = dollar ? 1 : 0;
    if (quote >= literal.size() || literal[quote] != '"') return false;
    const auto end = endOfString(literal, quote);
    if (end == kNowhere) return false;
    auto inner = undoubled(literal.substr(quote + 1, end - quote - 2));
    if (end == literal.size() && !dollar) {
        v.kind = PropertyValue::Kind::String;
        v.string = std::move(inner);
        return true;
    }
    std::size_t digits = 0;
    if (end >= literal.size() || literal[end] != ':') return false;
    if (!readHex(literal.substr(end + 1), v.resource.offset, digits) || end + 1 + digits != literal.size())
        return false;
    v.kind = PropertyValue::Kind::Resource;
    v.resource.file = std::move(inner);
    v.resource.isString = dollar;
    return true;
}

bool parseColour(PropertyValue& v, std::string_view literal) {
    if (literal.size() < 3 || (literal[1] != 'H' && literal[1] != 'h')) return false;
    std::uint32_t bits = 0;
    std::size_t digits = 0;
    if (!readHex(literal.substr(2), bits, digits)) return false;
    const auto rest = literal.substr(2 + digits);
    if (!rest.empty() && rest != "&") return false;
    v.kind = PropertyValue::Kind::Colour;
    v.number = static_cast<std::int32_t>(bits);
    return true;
}

bool parseNumber(PropertyValue& v, std::string_view literal) {
    std::string text(literal);
    if (const auto comma = text.find(','); comma != std::string::npos) text[comma] = '.';
    const char* first = text.data() + (text[0] == '+' ? 1 : 0);
    const char* last = text.data() + text.size();
    if (first == last || (*first != '-' && *first != '.' && (*first < '0' || *first > '9'))) return false;
    double number = 0;
    const auto [end, error] = std::from_chars(first, last, number);
    if (error != std::errc{} || end != last || !std::isfinite(number)) return false;
    const bool whole = text.find_first_not_of("+-0123456789") == std::string::npos;
    v.kind = whole ? PropertyValue::Kind::Integer : PropertyValue::Kind::Float;
    v.number = number;
    return true;
}

bool isShortcut(std::string_view literal) {
    const auto key = literal.find_first_not_of("^+%");
    if (key == kNowhere) return false;
    if (literal[key] == '{') return literal.back() == '}';
    return key > 0 && literal.size() == key + 1;
}

bool isGuid(std::string_view literal) { return literal.front() == '{' && basic::parseGuid(literal); }

} // namespace

PropertyValue parsePropertyValue(std::string_view literal) {
    using Kind = PropertyValue::Kind;
    PropertyValue v;
    v.text = literal;
    if (literal.empty()) return v;
    v.kind = Kind::Other;
    const char c = literal[0];
    if (c == '"' || c == '$') {
        parseStringOrResource(v, literal);
    } else if (c == '&') {
        parseColour(v, literal);
    } else if (isGuid(literal)) {
        v.kind = Kind::Guid;
    } else if (!parseNumber(v, literal) && isShortcut(literal)) {
        v.kind = Kind::Shortcut;
    }
    return v;
}

std::size_t literalLength(std::string_view text) {
    const std::size_t quote = text.substr(0, 1) == "$" ? 1 : 0;
    std::size_t from = 0;
    if (quote < text.size() && text[quote] == '"') from = endOfString(text, quote);
    const auto comment = from == kNowhere ? kNowhere : text.find('\'', from);
    const auto last = text.substr(0, comment).find_last_not_of(" \t");
    return last == kNowhere ? 0 : last + 1;
}

std::string stringLiteral(std::string_view value) {
    std::string out = "\"";
    for (const char c : value) out.append(c == '"' ? 2 : 1, c);
    return out += '"';
}

std::string integerLiteral(std::int64_t value) { return fmt::format("{}", value); }

std::string singleLiteral(double value) {
    const auto single = static_cast<float>(value);
    if (std::abs(single) < 1e15F && single == std::trunc(single)) return fmt::format("{}", std::int64_t(single));
    return fmt::format("{:.7g}", single);
}

std::string colourLiteral(std::uint32_t value) { return fmt::format("&H{:08X}&", value); }

std::string resourceLiteral(const ResourceReference& r) {
    return fmt::format("{}{}:{:04X}", r.isString ? "$" : "", stringLiteral(r.file), r.offset);
}

} // namespace host
