#pragma once
// The literals that stand behind "=" in the lines of a form.
#include <cstdint>
#include <string>
#include <string_view>

namespace host {

/// A record of a resource file: `"Form1.frx":0442`, or with a `$` before it when the record is a string.
struct ResourceReference {
    std::string file;
    std::size_t offset = 0;
    bool isString = false;
};

/// What a literal says. `text` is always the literal as it stands, so nothing is lost whatever its kind.
struct PropertyValue {
    enum class Kind { Empty, Integer, Float, Colour, String, Resource, Shortcut, Guid, Other };

    Kind kind = Kind::Empty;
    std::string text;
    double number = 0;          ///< Integer, Float, Colour (a colour as VB's signed 32-bit Long)
    std::string string;         ///< String: without its quotes, a doubled quote as one
    ResourceReference resource; ///< Resource

    bool isNumber() const { return kind == Kind::Integer || kind == Kind::Float || kind == Kind::Colour; }
};

/// Reads one literal, without the comment behind it. Never fails: what it does not know is Kind::Other.
/// A decimal comma, which a machine with such a locale leaves behind, reads as a point.
PropertyValue parsePropertyValue(std::string_view literal);

/// The length of the literal that `text` begins with: to the end of a string, else to a comment, without
/// the blanks behind it. A string that does not end goes to the end of the text.
std::size_t literalLength(std::string_view text);

std::string stringLiteral(std::string_view value);
std::string integerLiteral(std::int64_t value);
/// A Single as the designer writes it: at most 7 digits, a point, no exponent where one can be avoided.
std::string singleLiteral(double value);
/// &H, eight digits in capitals, &.
std::string colourLiteral(std::uint32_t value);
/// The offset in capitals, at least 4 digits.
std::string resourceLiteral(const ResourceReference& reference);

} // namespace host
