#pragma once
// VB's conversion functions. They always use the en-US format, independent of the machine's locale: "." before
// decimals, "," between groups of digits, "$", dates month first.
#include "Basic/types.h"
#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

template <class T>
concept Number = std::is_arithmetic_v<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

/// The argument of a conversion: a number, a Boolean (True is -1) or a text.
class Convertible {
public:
    Convertible(std::same_as<bool> auto value) : number_(value ? -1 : 0), isBoolean_(true) {}
    Convertible(Number auto value) : number_(static_cast<Double>(value)) {}
    Convertible(Currency value) : number_(static_cast<Double>(value.scaled) / 10000) {}
    Convertible(Date value) : number_(value.days) {}
    Convertible(std::string_view text) : text_(text) {}
    Convertible(const std::string& text) : text_(text) {}
    Convertible(const char* text) : text_(text) {}

    const std::optional<std::string_view>& text() const { return text_; }
    bool isBoolean() const { return isBoolean_; }

    /// Returns the number, or parses the text: error 13 if it is not a number, 6 if it is too large.
    Double number() const;

private:
    Double number_ = 0;
    bool isBoolean_ = false;
    std::optional<std::string_view> text_;
};

/// Returns False for 0 and "False", True for other numbers and "True", ignoring case and surrounding blanks. Error 13
/// for other texts.
bool CBool(const Convertible& value);

/// Rounds to the nearest whole number, halves to even. Error 13 for a text that is not a number, 6 for a number out of
/// range. A text such as "&HFFFF" is a bit pattern of the type: CInt returns -1, CLng 65535. CByte(True) is 255.
Byte CByte(const Convertible& value);
Integer CInt(const Convertible& value);
Long CLng(const Convertible& value);

/// Errors 13 and 6 as above.
Single CSng(const Convertible& value);
Double CDbl(const Convertible& value);

/// Rounds to the nearest ten-thousandth, halves to even. Texts are parsed exactly. Errors 13 and 6 as above.
Currency CCur(const Convertible& value);

/// VB's texts: "True" and "False"; a Single with 7 and a Double with 15 significant digits, with an exponent ("1E+20")
/// if these digits are not enough; a Currency without trailing zeros.
std::string CStr(std::same_as<bool> auto value) { return value ? "True" : "False"; }
std::string CStr(Byte number);
std::string CStr(Integer number);
std::string CStr(Long number);
std::string CStr(Single number);
std::string CStr(Double number);
std::string CStr(Currency number);

/// Fix truncates; Int rounds down.
Double Fix(const Convertible& value);
Double Int(const Convertible& value);

/// Rounds to `digits` decimals, halves to even. Error 5 unless `digits` is in 0 to 22.
Double Round(const Convertible& value, Long digits = 0);

/// -1, 0 or 1.
Integer Sgn(const Convertible& value);

/// The absolute value. Error 6 for the lowest Integer and the lowest Long.
Integer Abs(Integer number);
Long Abs(Long number);
Double Abs(Double number) noexcept;

} // namespace basic
