#pragma once
// The literals after "=" in the lines of a form.
#include <cstdint>
#include <string>
#include <string_view>

namespace host {

/// A record of a resource file: `"Form1.frx":0442`, preceded by `$` if the record is a string.
struct ResourceReference {
    std::string file;
    std::size_t offset = 0;
    bool isString = false;
};

/// A parsed literal. `text` is always the literal as written.
struct PropertyValue {
    enum class Kind { Empty, Integer, Float, Colour, String, Resource, Shortcut, Guid, Other };

    Kind kind = Kind::Empty;
    std::string text;
    double number = 0;          ///< Integer, Float, Colour (a colour as VB's signed 32-bit Long)
    std::string string;         ///< String: without its quotes, a doubled quote as one
    ResourceReference resource; ///< Resource

    bool isNumber() const { return kind == Kind::Integer || kind == Kind::Float || kind == Kind::Colour; }
};

/// Parses one literal without its comment. Never fails: an unknown form is Kind::Other. A decimal comma, written by
/// machines with such a locale, is read as a point.
PropertyValue parsePropertyValue(std::string_view literal);

/// Returns the length of the literal at the start of `text`: to the end of a string, otherwise to a comment, without
/// trailing blanks. A string without a closing quote extends to the end of the text.
std::size_t literalLength(std::string_view text);

std::string stringLiteral(std::string_view value);
std::string integerLiteral(std::int64_t value);
/// A Single as the designer writes it: at most 7 digits, a decimal point, no exponent if it can be avoided.
std::string singleLiteral(double value);
/// &H, eight digits in capitals, &.
std::string colourLiteral(std::uint32_t value);
/// The offset in capitals, at least 4 digits.
std::string resourceLiteral(const ResourceReference& reference);

} // namespace host
